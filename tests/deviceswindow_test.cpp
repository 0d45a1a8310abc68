#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"
#include "support/Store.h"
#include "support/TestDevice.h"

#include "client/devices/DeviceLookup.h"
#include "client/devices/DeviceStates.h"
#include "client/devices/DevicesWindow.h"
#include "client/form/FormTicks.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryWriter.h"

#include <QtWidgets>
#include <orda_base/BaseForm.h>
#include <orda_base/DisabledWaitingWt.h>
#include <orda_data/DevsMgrData.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>

using namespace orda_client;
using namespace orda_journal;
using namespace vms_sdk;

namespace {

DevInfo device(int number)
{
    const QString text = QString::number(number);
    DevInfo dev;
    dev.id = "dev" + text, dev.name = "Cam " + text, dev.serialNumber = "SN" + text;
    dev.ip = "10.0.0." + QString::number(number + 1), dev.port = 80;
    dev.accessCode = 1, dev.kindCode = number == 8 ? 3 : 1;
    dev.group = number < 3 ? "north & south" : "";
    return dev;
}

orda_data::DevsMgrData &store()
{
    return orda_data::DevsMgrData::instance();
}

void setOnline(const QString &devIds, bool isOnline)
{
    const QStringList list = devIds.split(' ');
    for (const QString &devId : list)
        store().setDevStatus(devId, isOnline ? DevOnline : DevOffline);
}

/// The window over the devices and the form.
struct Site
{
    explicit Site(int devices = 12)
    {
        history.path = place.filePath("history.db");
        session = std::make_unique<ClientSession>(history);
        if (devices > 0) // which are not dialled
            ClientSdk::instance().setTransport(std::make_unique<ScriptedTransport>(silent));
        form.reset(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
        for (int i = 0; i < devices; ++i) {
            store().updateDevs({device(i)});
            setOnline(device(i).id, i < 8);
        }
        store().setDevTrouble("dev9", {TroubleReason::NoAnswer, {}, 1000});
        store().setDevStatus("dev9", DevConnecting);
        QSignalSpy(&states, &DeviceStates::signalChanged).wait(1000);
        open();
    }
    ~Site()
    {
        window.reset();
        dismissDialogs();
        form.reset();
        clearStore();
    }
    Q_DISABLE_COPY_MOVE(Site)

    void open()
    {
        window = std::make_unique<DevicesWindow>(session.get(), &states, form.get(), &settings);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QApplication::setActiveWindow(window.get());
    }

    QTableView *table() const { return window->findChild<QTableView *>("devices"); }
    int columnOf(const QString &title) const
    {
        for (int i = 0; i < table()->model()->columnCount(); ++i)
            if (table()->model()->headerData(i, Qt::Horizontal) == title)
                return i;
        return -1;
    }
    QStringList column(const QString &title) const
    {
        QStringList texts;
        for (int row = 0; row < table()->model()->rowCount(); ++row)
            texts.append(table()->model()->index(row, columnOf(title)).data().toString());
        return texts;
    }
    QStringList statesWithCounts() const
    {
        const auto *list = window->findChild<QTableWidget *>("states");
        QStringList lines;
        for (int row = 0; row < list->rowCount(); ++row)
            lines.append(list->item(row, 0)->text() + ' ' + list->item(row, 1)->text());
        return lines;
    }
    QString shown(const QString &what) const
    {
        if (what == "states")
            return statesWithCounts().join(',');
        if (what == "ticks")
            return FormTicks::of(form.get()).devIds.join(',');
        if (what == "file")
            return said;
        if (auto *report = window->findChild<QPlainTextEdit *>("lookUpReport"); what == "report" && report)
            return report->toPlainText().simplified();
        if (const auto *label = window->findChild<QLabel *>(what == "note" ? "tickNote" : what)) {
            const QString lines = window->findChild<QPlainTextEdit *>("notTicked")->toPlainText();
            return (what == "note" ? label->text() + ' ' + lines : label->text()).simplified();
        }
        if (const auto *button = window->findChild<QPushButton *>(what))
            return button->isEnabled() ? button->text().remove('&') : "off";
        return column(what).join(',');
    }
    bool clickMenu(const char *name, const QString &text) const
    {
        emit window->findChild<QMenu *>("groupsMenu")->aboutToShow();
        const auto actions = window->findChild<QMenu *>(name)->actions();
        for (QAction *action : actions)
            if (action->isEnabled() && action->text().contains(text))
                return action->trigger(), true;
        return false;
    }
    void select(const QStringList &names) const
    {
        for (const QString &name : names)
            table()->selectionModel()->select(table()->model()->index(column("Name").indexOf(name), 0),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    bool answerInput(const QString &text) const
    {
        auto *dialog = window->findChildren<QInputDialog *>().last(); // an earlier one may still be going
        dialog->setTextValue(text);
        dialog->accept();
        return true;
    }
    bool take(const QString &word, QString rest);
    bool useFile(const QString &word, QString rest);

    QTemporaryDir place;
    QString said; // what a file has
    HistoryOptions history;
    ClientSettings settings{place.filePath("client.ini")};
    DeviceStates states;
    std::unique_ptr<ClientSession> session;
    std::unique_ptr<QWidget> form;
    std::unique_ptr<DevicesWindow> window;
};

/// Does one step of a journey (tests/cases/devices_window.txt). @return whether there is such a step, and it could be
bool Site::take(const QString &word, QString rest)
{
    if (word == "choose")
        window->findChild<QTableWidget *>("states")->selectRow(
            statesWithCounts().indexOf(QRegularExpression('^' + rest + " [0-9]+$")));
    else if (word == "search")
        window->findChild<QWidget *>("deviceSearch")->findChild<QLineEdit *>()->setText(rest);
    else if (word == "sort")
        table()->sortByColumn(columnOf(rest.section(' ', 0, 0)), Qt::SortOrder(rest.endsWith("down")));
    else if (word == "online" || word == "offline")
        setOnline(rest, word == "online");
    else if (word == "delete")
        store().deleteDevs({rest});
    else if (word == "add")
        store().updateDevs({device(rest.mid(3).toInt())});
    else if (word == "tick")
        FormTicks::tickExactly(form.get(), rest.split(' '));
    else if (word == "run")
        (new orda_base::DisabledWaitingWt(form.get(), "a run"))->show();
    else if (word == "key")
        QTest::keyClick(window.get(), Qt::Key_F5);
    else if (word == "click")
        QTest::mouseClick(window->findChild<QPushButton *>(rest), Qt::LeftButton);
    else if (word == "select")
        select(rest.split(','));
    else if (word == "menu")
        return clickMenu("groupsMenu", rest);
    else if (word == "forget")
        return clickMenu("forgetMenu", rest) && (window->findChild<QMessageBox *>()->buttons().last()->click(), true);
    else if (word == "name")
        return answerInput(rest);
    else if (word == "paste")
        window->findChild<QPlainTextEdit *>("list")->setPlainText(rest.replace("\\n", "\n"));
    else
        return useFile(word, rest);
    return true;
}

bool Site::useFile(const QString &word, QString rest)
{
    QFile file(place.filePath(word == "write" ? "list.csv" : rest));
    if (word == "write") {
        const QByteArray text = rest.replace("\\r\\n", "\r\n").toLatin1();
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }
    emit window->findChild<QFileDialog *>()->fileSelected(file.fileName());
    const bool isThere = file.open(QIODevice::ReadOnly);
    said = file.readAll();
    return word == "load" && isThere;
}

} // namespace

/// The window of all devices, and how they get from there into the form's ticks.
class DevicesWindowTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void journeys_data()
    {
        columns<QString>({"steps"});
        rowsFrom("devices_window.txt");
    }

    void journeys()
    {
        QFETCH(QString, steps);
        Site site;
        const QStringList list = steps.split(" > ");
        for (const QString &step : list) {
            const QString word = step.section(' ', 0, 0), sign = step.section(' ', 1, 1), rest = step.section(' ', 2);
            if (sign != "=" && sign != "~") {
                QVERIFY2(site.take(word, step.section(' ', 1)), qPrintable(step));
                continue;
            }
            const QRegularExpression pattern(rest, QRegularExpression::DotMatchesEverythingOption);
            const auto fits = [&] {
                return sign == "=" ? site.shown(word) == rest : pattern.match(site.shown(word)).hasMatch();
            };
            QVERIFY2(QTest::qWaitFor(fits, 2000), qPrintable(step + " but: " + site.shown(word)));
        }
    }

    void textsAreLookedUp_data()
    {
        columns<QString, QString, QString>({"list", "table", "expected"});
        rowsFrom("device_lookup.txt");
    }

    void textsAreLookedUp()
    {
        QFETCH(QString, list);
        QFETCH(QString, table);
        QFETCH(QString, expected);
        QList<DevInfo> devices;
        for (int i = 0; i < 9; ++i)
            devices.append(device(i));
        devices[2].name = "Yard, Gate 2";
        devices[3].name = "cam 1", devices[3].ip = devices[2].ip, devices[3].port = 81;
        devices[4].ip.clear(), devices[4].url = "ws://relay.example/4";
        devices[5].name = "Cam 1 \"B\"", devices[6].name = "12\" screen", devices[7].name = "-7";
        devices[8].id = "dev0x", devices[8].name = "SN4", devices[8].serialNumber = "SN4x";
        list.replace("\\n", "\n").replace("\\t", "\t").replace("\\r", "\r");
        const auto found = DeviceLookup(devices).find(QChar(QChar::ByteOrderMark) + list, table == "yes");
        QStringList told{found.devIds.join(' '), found.unknown.join(',')}, ambiguous;
        for (const DeviceLookup::Ambiguous &text : found.ambiguous)
            ambiguous.append(text.text + '=' + text.devIds.join(','));
        told << ambiguous.join(' ') << found.repeated.join(',') << found.error.section(": ", 1);
        QCOMPARE(told.join(';'), expected);
    }

    void sinceWhenIsKnown()
    {
        Site site;
        const auto since = [&site](const char *devId) { return site.states.of(devId).since; };
        const qint64 online = since("dev0"), never = since("dev10");
        QVERIFY(online > 0 && never > 0);
        QTest::qWait(2);
        for (const TroubleReason reason : {TroubleReason::ConnectionLost, TroubleReason::NoAnswer}) {
            store().setDevTrouble("dev0", {reason, {}, 5000});
            store().setDevStatus("dev0", reason == TroubleReason::NoAnswer ? DevConnecting : DevOffline);
            QCOMPARE(since("dev0"), 5000);
        }
        emit ClientSignals::instance().signalDevTroubled("dev10", {TroubleReason::NoAddress, {}, 0});
        QCOMPARE(site.states.of("dev10").reason, orda_engine::ReachReason::NoAddress);
        QCOMPARE(since("dev10"), never);
        setOnline("dev0 dev10", true);
        QVERIFY(since("dev0") > online && since("dev10") > never);
        const QSignalSpy told(&site.states, &DeviceStates::signalChanged); // of all that, once
        QVERIFY(QTest::qWaitFor([&] { return told.count() > 0; })
                && !QTest::qWaitFor([&] { return told.count() > 1; }, 300));
    }

    void outcomesAreThoseOfThisDevice()
    {
        Site site;
        HistoryWriter writer(site.history);
        quint64 committed = 0;
        connect(&writer, &HistoryWriter::signalCommitted, this, [&](quint64 to) { committed = to; });
        const auto run = [&](const QString &family, const QStringList &devIds, Outcome outcome) {
            const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
            writer.beginRun({id, family, "apply", {}, {}, {}, devIds});
            for (const QString &devId : devIds)
                writer.putDevice(id, {devId, outcome, 0, {}, {}});
            const quint64 end = writer.endRun(id);
            return QTest::qWaitFor([&] { return committed >= end; });
        };
        QVERIFY(run("osd", {"dev0", "dev1", "dev2"}, Outcome::Failed)
                && run("audio", {"dev1"}, Outcome::PartlyWritten));
        DevInfo replaced = device(2);
        replaced.serialNumber = "new";
        store().updateDevs({replaced});
        site.open();
        const auto outcomes = [&site] { return site.column("Last outcome").mid(0, 4).join('|'); };
        QTRY_COMPARE(outcomes(), "OSD Parameters: Failed|Audio Parameters: Partly written||");
        QVERIFY(run("audio", {"dev2"}, Outcome::Done));
        store().updateDevs({device(2)}); // it is back
        site.open();
        QTRY_COMPARE(outcomes(), "OSD Parameters: Failed|Audio Parameters: Partly written|OSD Parameters: Failed|");
    }

    void refusedOnesAreTriedAgainWhenAsked()
    {
        Site site(0);
        TestDevice refused("SN-1");
        refused.fault = Refuses;
        expectWarning("password");
        store().updateDevs({refused.info});
        QTRY_COMPARE(store().getDevStatus("SN-1"), DevRefused);
        refused.fault = NoFault;
        QTRY_COMPARE(site.table()->model()->rowCount(), 1);
        site.table()->selectAll();
        site.take("click", "connectAgain");
        QTRY_VERIFY(isOnlineStatus(store().getDevStatus("SN-1")));
        QCOMPARE(refused.dials, 2);
    }
};

ORDA_TEST_MAIN(DevicesWindowTest)

#include "deviceswindow_test.moc"
