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
#include "journal/HistoryArchive.h"

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
    dev.ip = "10.0.0." + QString::number(number + 1), dev.port = 80, dev.accessCode = 1;
    dev.kindCode = number == 8 ? 3 : 1, dev.group = number < 3 ? "north & south" : "";
    dev.protocol = number == 7 ? DevProtocol::Onvif : DevProtocol::Vms;
    return dev;
}

QStringList cells(const QAbstractItemModel *model, int column)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, column).data().toString());
    return texts;
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
            store.updateDevs({device(i)});
            store.setDevStatus(device(i).id, i < 8 ? DevOnline : DevOffline);
        }
        store.setDevTrouble("dev9", {TroubleReason::NoAnswer, {}, 1000});
        store.setDevStatus("dev9", DevConnecting);
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

    void open()
    {
        window = std::make_unique<DevicesWindow>(session.get(), &states, form.get(), &settings);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
    }

    /// The latest one: earlier dialogs may still be going.
    template <typename T>
    T *child(const QString &name = {}) const
    {
        const auto all = window->findChildren<T *>(name);
        return all.isEmpty() ? nullptr : all.last();
    }
    QAbstractItemModel *table() const { return child<QTableView>("devices")->model(); }
    bool clickMenu(const char *name, const QString &text) const
    {
        emit child<QMenu>("groupsMenu")->aboutToShow();
        const auto actions = child<QMenu>(name)->actions();
        for (QAction *action : actions)
            if (action->isEnabled() && action->text().contains(text))
                return action->trigger(), true;
        return false;
    }

    /// What a step of a journey (tests/cases/devices_window.txt) looks at.
    QString shown(const QString &what) const
    {
        if (const auto *list = child<QTableWidget>(what))
            return (cells(list->model(), 0) + cells(list->model(), 1)).join(',');
        if (what == "ticks")
            return FormTicks::of(form.get()).devIds.join(',');
        if (QFile file(place.filePath("list.csv")); what == "file" && file.open(QIODevice::ReadOnly))
            return file.readAll();
        if (const auto *lines = child<QPlainTextEdit>(what))
            return lines->toPlainText().simplified();
        if (const auto *button = child<QPushButton>(what))
            return button->isEnabled() ? button->text().remove('&') : "off";
        static const QStringList titles{"Name", "State",    "Since", "Serial", "Address",
                                        "Kind", "Protocol", "Group", "Outcome"};
        return child<QLabel>(what) ? child<QLabel>(what)->text() : cells(table(), titles.indexOf(what)).join(',');
    }

    /// Does a step. @return whether there is such a step, and it could be done
    bool take(const QString &word, QString rest) const
    {
        rest.replace("\\r\\n", "\r\n").replace("\\n", "\n");
        auto *view = child<QTableView>("devices");
        auto *list = child<QTableWidget>("states");
        QFile file(place.filePath("list.csv"));
        const auto rows = QItemSelectionModel::Select | QItemSelectionModel::Rows;
        const QHash<QString, std::function<bool()>> steps{
            {"choose", [&] { return list->selectRow(cells(list->model(), 0).indexOf(rest)), true; }},
            {"search", [&] { return child<QWidget>("deviceSearch")->findChild<QLineEdit *>()->setText(rest), true; }},
            {"sort", [&] { return view->sortByColumn(rest[0].digitValue(), Qt::SortOrder(rest[2] == 'd')), true; }},
            {"select",
             [&] {
                 return view->selectionModel()->select(table()->index(cells(table(), 0).indexOf(rest), 0), rows), true;
             }},
            {"click", [&] { return QTest::mouseClick(child<QPushButton>(rest), Qt::LeftButton), true; }},
            {"online", [&] { return store.setDevStatus(rest, DevOnline), true; }},
            {"offline", [&] { return store.setDevStatus(rest, DevOffline), true; }},
            {"add", [&] { return store.updateDevs({device(rest.midRef(3).toInt())}), true; }},
            {"replace",
             [&] {
                 DevInfo other = store.getDevInfoById(rest);
                 other.serialNumber = "NEW";
                 return store.updateDevs({other}), true;
             }},
            {"other", // client with the same settings, in a process of its own
             [&] {
                 QFile other(place.filePath("client.ini"));
                 const QString json = QString("{'%1':[{'id':'dev3'}]}").arg(rest).replace("'", "\\\"");
                 return other.open(QIODevice::WriteOnly)
                     && other.write(QString("[General]\nselections=\"%1\"\n").arg(json).toUtf8()) > 0;
             }},
            {"readonly", [&] { return QDir().mkdir(place.filePath("client.ini")); }}, // for root, too
            {"delete", [&] { return store.deleteDevs({rest}), true; }},
            {"tick", [&] { return FormTicks::tickExactly(form.get(), rest.split(' ')).notListed.isEmpty(); }},
            {"run", [&] { return (new orda_base::DisabledWaitingWt(form.get(), {}))->show(), true; }},
            {"menu", [&] { return clickMenu("groupsMenu", rest); }},
            {"forget",
             [&] {
                 return clickMenu("forgetMenu", rest)
                     && QTest::qWaitFor([&] { return child<QPushButton>("confirm")->isEnabled(); })
                     && (child<QPushButton>("confirm")->click(), true);
             }},
            {"name", [&] { return child<QInputDialog>()->setTextValue(rest), child<QInputDialog>()->accept(), true; }},
            {"paste", [&] { return child<QPlainTextEdit>("list")->setPlainText(rest), true; }},
            {"write", [&] { return file.open(QIODevice::WriteOnly) && file.write(rest.toLatin1()) == rest.size(); }},
            {"file", [&] { return emit child<QFileDialog>()->fileSelected(file.fileName()), true; }}};
        return steps.contains(word) && steps.value(word)();
    }

    orda_data::DevsMgrData &store = orda_data::DevsMgrData::instance();
    QTemporaryDir place;
    HistoryOptions history;
    ClientSettings settings{place.filePath("client.ini")};
    DeviceStates states;
    std::unique_ptr<ClientSession> session;
    std::unique_ptr<QWidget> form;
    std::unique_ptr<DevicesWindow> window;
};

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
            const QString pattern = sign == "=" ? '^' + QRegularExpression::escape(rest) + '$' : rest;
            const QRegularExpression expected(pattern, QRegularExpression::DotMatchesEverythingOption);
            const auto fits = [&] { return expected.match(site.shown(word)).hasMatch(); };
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
        QTest::qWait(2);
        site.store.setDevTrouble("dev0", {TroubleReason::ConnectionLost, {}, 5000});
        site.store.setDevStatus("dev0", DevOffline);
        QCOMPARE(since("dev0"), 5000);
        emit ClientSignals::instance().signalDevTroubled("dev10", {TroubleReason::NoAddress, {}, 0});
        QVERIFY(site.states.of("dev10").text().contains("no address") && since("dev10") == never);
        site.store.setDevStatus("dev10", DevOnline);
        site.store.setDevStatus("dev0", DevOnline); // it was away for less than it takes to tell
        QVERIFY(online > 0 && since("dev0") > online && since("dev10") > never);
        const QSignalSpy told(&site.states, &DeviceStates::signalChanged); // of all that, once
        QVERIFY(!QTest::qWaitFor([&] { return told.count() > 1; }, 500) && told.count() == 1);
    }

    void outcomesAreThoseOfThisDevice()
    {
        Site site;
        const auto add = [&site](const QString &family, qint64 began, const QStringList &serialNumbers) {
            RunDetails run{{QUuid::createUuid().toString(QUuid::WithoutBraces), family, "apply", {}, {}, "test"}};
            run.run.began = began, run.run.ended = began + 1;
            for (int i = 0; i < serialNumbers.size(); ++i)
                run.devices.append({device(i).id, Outcome::Failed, 0, {}, {}, {}, serialNumbers.at(i)});
            bool isKnown = false;
            return HistoryArchive(site.history).add(run, &isKnown);
        };
        QCOMPARE(add("audio", 2000, {"SN0", "", "replaced"}), QString()); // the latest, though not written last
        QCOMPARE(add("osd", 1000, {"SN0", "SN1", "SN2"}) + add("video", 3000, {"", "replaced"}), QString());
        site.open();
        const QString expected = "Video Parameters: Failed,Audio Parameters: Failed,OSD Parameters: Failed,";
        QTRY_COMPARE(site.shown("Outcome").section(',', 0, 3), expected);
    }

    void refusedOnesAreTriedAgainWhenAsked()
    {
        Site site(0);
        TestDevice refused("SN-1");
        refused.fault = Refuses;
        expectWarning("password");
        site.store.updateDevs({refused.info});
        QTRY_COMPARE(site.store.getDevStatus("SN-1"), DevRefused);
        refused.fault = NoFault;
        QTRY_COMPARE(site.table()->rowCount(), 1);
        site.child<QTableView>("devices")->selectAll();
        site.take("click", "connectAgain");
        QTRY_VERIFY(isOnlineStatus(site.store.getDevStatus("SN-1")));
        QCOMPARE(refused.dials, 2);
    }
};

ORDA_TEST_MAIN(DevicesWindowTest)

#include "deviceswindow_test.moc"
