#include "support/FleetOf.h"
#include "support/OrdaTest.h"
#include "support/RecordEntry.h"
#include "support/Store.h"

#include "client/app/ClientWindow.h"
#include "client/form/Families.h"
#include "client/record/LastRunWindow.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "fleet/EmbeddedFleet.h"
#include "journal/HistoryOptions.h"

#include <QtWidgets>
#include <vms_client_sdk/ClientSignals.h>

using namespace orda_client;
using device_fleet::EmbeddedFleet;
using device_fleet::Fault;

namespace {

QString recordPath()
{
    return QDir::temp().filePath(findFamily("audio")->recordFile);
}

QString now()
{
    return QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm:ss");
}

void append(const QString &text, QIODevice::OpenMode mode = QIODevice::Append)
{
    QFile file(recordPath());
    QVERIFY(file.open(QIODevice::WriteOnly | mode));
    file.write(text.toLocal8Bit());
}

QStringList column(const QAbstractItemModel *model, int number)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, number).data().toString());
    return texts;
}

template <typename Widget>
Widget *child(const QWidget &window, const char *name)
{
    return window.findChild<Widget *>(name);
}

QLineEdit *searchIn(const QWidget &window, const char *box)
{
    return child<QWidget>(window, box)->findChild<QLineEdit *>();
}

/// The client with the window of the last run beside it.
struct Client
{
    Client()
    {
        window.show();
        child<QAction>(window, "showLastRun")->trigger();
    }

    ClientSession session{orda_journal::HistoryOptions()};
    ClientSettings settings{QString()};
    ClientWindow window{&session, &settings};
    const LastRunWindow &lastRun() const { return *window.findChild<LastRunWindow *>(); }
    QAbstractItemModel *shown() const { return child<QTableView>(lastRun(), "record")->model(); }
};

/// The client over a fleet, of which four devices refuse and one talks nonsense.
struct Site : Client
{
    Site()
    {
        child<QAbstractButton>(window, "audio_param")->click();
        fleet.start();
        devices = fleet.inventory();
        devices[1].name = "=1+\"1\";=2, north";
        orda_data::DevsMgrData::instance().updateDevs(devices);
        const auto areOnline = [this] {
            return itemOf(0) && itemOf(1) && itemOf(2) && itemOf(4) && itemOf(5) && itemOf(6);
        };
        if (!QTest::qWaitFor(areOnline))
            qFatal("the devices did not come online");
        for (const int device : {1, 2, 4, 5})
            fleet.setFault(devices.at(device).id, "ai_get_param", {Fault::ErrorCode, -1});
        fleet.setFault(devices.at(6).id, "*", {Fault::Garbage});
    }

    ~Site() { clearStore(); } // the next one waits for devices of its own
    Q_DISABLE_COPY_MOVE(Site)

    QTableWidgetItem *itemOf(int device) const
    {
        return list->findItems(devices.at(device).serialNumber, Qt::MatchExactly).value(0);
    }
    QStringList serialNumbers(const QList<int> &numbers) const
    {
        QStringList texts;
        for (const int number : numbers)
            texts.append(devices.at(number).serialNumber);
        texts.sort();
        return texts;
    }
    QStringList ticked() const
    {
        QStringList texts;
        for (int row = 0; row < list->rowCount(); ++row)
            if (list->item(row, 0)->checkState() == Qt::Checked && !list->isRowHidden(row))
                texts.append(list->item(row, 2)->text());
        texts.sort();
        return texts;
    }
    QAbstractButton *again() const { return child<QAbstractButton>(lastRun(), "tickFailedAgain"); }
    void press(const char *button) const
    {
        child<QAbstractButton>(*child<QWidget>(window, "audioParametersPage"), button)->click();
    }
    void report() const { press("reportBt"); }
    bool isLastRunOpen() const { return window.findChild<LastRunWindow *>(); }
    void closeLastRun() const
    {
        window.findChild<LastRunWindow *>()->close();
        QTRY_VERIFY(!isLastRunOpen());
    }
    void configure() const
    {
        press("okBt");
        child<QDialog>(window, "eventConfirmDialog")->reject();
    }
    void tickAllAndConfigure() const
    {
        child<QCheckBox>(window, "selAll")->click();
        configure();
    }

    EmbeddedFleet fleet{fleetOf(30)};
    QList<vms_sdk::DevInfo> devices;
    QTableWidget *list = child<QTableWidget>(window, "devsTableWt");
};

} // namespace

/// The client's window of the last run, from the record to the second try.
class LastRunTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        QFile::remove(recordPath());
        QFile::remove(recordPath() + ".elsewhere");
    }

    void recordOfDoubtfulOriginIsNotRead_data()
    {
        columns<QString>({"command"}); // for the shell, which gets the record's path as $0
        row("symbolic link", "mv $0 $0.elsewhere && ln -s $0.elsewhere $0");
        row("not a regular file", "rm $0 && mkfifo $0");
        row("more than one name", "ln -f $0 $0.elsewhere");
        row("too large", "truncate -s 4G $0");
        row("another user", "chown 65534 $0");
    }

    void recordOfDoubtfulOriginIsNotRead()
    {
        QFETCH(QString, command);
        append(entry("A", "10.0.0.1", "no", "Cam"));
        const bool isDone = QProcess::execute("sh", {"-c", command, recordPath()}) == 0;
        if (!isDone && command.startsWith("chown"))
            QSKIP("only root can give a file away");
        QVERIFY(isDone);
        const Client client;
        QCOMPARE(client.shown()->rowCount(), 0);
        QVERIFY(child<QLabel>(client.lastRun(), "empty")->text().contains(QTest::currentDataTag()));
    }

    void columnsSortAsPeopleReadThem()
    {
        append(entry("3", "10.0.0.9", "success", "cam 10") + entry("1", "", "no", "cam 3")
               + entry("2", "10.0.0.10", "success", "Cam 2") + entry("4", "gate.site", "success", "Gate"));
        const Client client;
        const auto order = [&client] { return column(client.shown(), 2).join(' '); };
        const auto sorted = [&](int by) {
            child<QTableView>(client.lastRun(), "record")->sortByColumn(by, Qt::AscendingOrder);
            return order();
        };
        QCOMPARE(order(), "1 2 3 4"); // failures first
        QCOMPARE(sorted(1), "2 1 3 4");
        QCOMPARE(sorted(3), "3 2 4 1");
    }

    void failuresAreGroupedFoundAndExported()
    {
        const Site site;
        const LastRunWindow &window = site.lastRun();
        QVERIFY(!site.again()->isEnabled());
        QVERIFY(child<QLabel>(window, "empty")->text().startsWith("No run yet"));
        site.tickAllAndConfigure();
        const auto *shown = site.shown();
        QCOMPARE(shown->rowCount(), site.ticked().size());

        auto *groups = child<QTableWidget>(window, "groups");
        QCOMPARE(column(groups->model(), 0).mid(1),
                 QStringList({"Failed to get audio in parameters(-1)", "Failed to parse json data"}));
        groups->selectRow(1);
        QStringList grouped = column(shown, 2);
        grouped.sort();
        QCOMPARE(grouped, site.serialNumbers({1, 2, 4, 5}));
        groups->selectRow(0);
        child<QComboBox>(window, "outcomes")->setCurrentIndex(1);
        QCOMPARE(shown->rowCount(), 5);
        searchIn(window, "recordSearch")->setText("=1+");
        child<QAbstractButton>(window, "exportCsv")->click();
        const QString exported = QDir::temp().filePath("failed.csv");
        emit window.findChild<QFileDialog *>()->fileSelected(exported);
        QFile file(exported);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString row = column(shown, 4).constFirst() + ",Failed to get audio in parameters(-1)\r\n";
        QCOMPARE(file.readAll(), QStringLiteral("\uFEFFOutcome,Name,Serial number,IP address,Time,Message\r\n"
                                                "Failed,\"'=1+\"\"1\"\";'=2, north\",%1,%2,%3")
                                     .arg(site.devices.at(1).serialNumber, site.devices.at(1).ip, row)
                                     .toUtf8());
    }

    /// The record grows by what leaves a doubt, two devices in the list have one number, another goes offline.
    void whatLeavesADoubtIsNotTickedAgain()
    {
        Site site;
        site.tickAllAndConfigure();
        const LastRunWindow &window = site.lastRun();
        const auto *groups = child<QTableWidget>(window, "groups");
        QTRY_VERIFY(site.again()->isEnabled());
        append(entry("", "10.0.0.1", "no", "nameless", now()));
        QTRY_COMPARE(groups->rowCount(), 4);
        append(entry("unknown", "10.0.0.1", "no", "stranger", now())
               + entry(qPrintable(site.devices.at(2).serialNumber), "10.0.0.1", "success", "twin", now()) + "2026-");
        QTRY_COMPARE(groups->rowCount(), 5);
        site.itemOf(0)->setText(site.devices.at(6).serialNumber);
        site.fleet.setOnline(site.devices.at(4).id, false);
        QTRY_VERIFY(!site.itemOf(4));
        searchIn(site.window, "searchBox")->setText(site.devices.at(6).serialNumber);
        site.again()->click();
        QCOMPARE(site.ticked(), site.serialNumbers({1, 5}));
        QCOMPARE(searchIn(site.window, "searchBox")->text(), QString());
        QVERIFY(child<QLabel>(window, "tickReport")->text().startsWith("Ticked 2 of 8"));
        QStringList left = child<QPlainTextEdit>(window, "tickReportList")->toPlainText().split('\n');
        QCOMPARE(left.size(), 6);
        QCOMPARE(left.filter("not in the list").size(), 2);
        QCOMPARE(left.filter("several devices of the run").size(), 1);
        QCOMPARE(left.filter("several devices in the list").size(), 1);
        QCOMPARE(left.filter("nameless: it has no serial number").size(), 1);
        QCOMPARE(left.filter("2026-: its entry in the record cannot be read").size(), 1);
    }

    void failedDevicesAreConfiguredAtTheSecondTry()
    {
        Site site;
        site.tickAllAndConfigure();
        QTRY_VERIFY(site.again()->isEnabled());
        site.again()->click();
        QCOMPARE(site.ticked(), site.serialNumbers({1, 2, 4, 5, 6}));
        site.fleet.clearFaults();
        QStringList changed; // by the operator and by the button, in mid-run
        const auto midRun =
            connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalCommonRes, this, [&] {
                if (changed.isEmpty()) {
                    site.list->item(site.itemOf(1)->row(), 0)->setCheckState(Qt::Unchecked);
                    site.again()->click();
                    changed = site.ticked();
                }
            });
        site.configure();
        disconnect(midRun);
        QCOMPARE(changed, site.serialNumbers({2, 4, 5, 6})); // the list is left alone
        QCOMPARE(column(site.shown(), 5), QStringList(QVector<QString>(5, "success").toList()));
        QVERIFY(!site.again()->isEnabled());
    }

    void reportWithoutAViewerOpensTheWindow()
    {
        const QTemporaryDir programs; // an opener that finds none
        QFile opener(programs.filePath("xdg-open")), seen(programs.filePath("seen"));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\necho \"$1\" >\"${0%/*}/seen\"\nexit 3\n");
        opener.close();
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Site site;
        // A time of this very run, so that nothing but the writer's word tells that this is no entry.
        site.devices[6].name = QString("X\n\n%1    SN    10.0.0.1            success                Y").arg(now());
        orda_data::DevsMgrData::instance().updateDevs(site.devices);
        site.tickAllAndConfigure();
        site.closeLastRun();
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(programs.path()));
        site.report();
        QTRY_VERIFY(site.isLastRunOpen());
        qputenv("PATH", path);
        QVERIFY(seen.open(QIODevice::ReadOnly));
        QCOMPARE(seen.readAll(), QFile::encodeName(recordPath()) + '\n');
        const QStringList outcomes = column(site.shown(), 0);
        QCOMPARE(outcomes.size() - outcomes.filter("Succeeded").size(), 5);
        QVERIFY(!column(site.shown(), 2).contains("SN"));
    }

    /// What another has put there is not shown, and Report opens the window.
    void runThatLostItsRecordIsShownAsSuch()
    {
        append("elsewhere");
        QVERIFY(QFile::rename(recordPath(), recordPath() + ".elsewhere")
                && QFile::link(recordPath() + ".elsewhere", recordPath()));
        const Site site;
        site.closeLastRun();
        child<QCheckBox>(site.window, "selAll")->click();
        expectWarning("it is a symbolic link");
        site.press("okBt");
        auto *summary = child<QMessageBox>(site.window, "eventConfirmDialog");
        QVERIFY(summary->informativeText().contains("failure:5\nThe last run left no record"));
        const auto labels = summary->findChildren<QLabel *>();
        for (const QLabel *label : labels) // the dialog has grown
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
        summary->reject();
        site.report();
        QVERIFY(site.isLastRunOpen());
        QCOMPARE(site.shown()->rowCount(), 0);
        QVERIFY(child<QLabel>(site.lastRun(), "empty")->text().contains("it is a symbolic link"));
    }
};

ORDA_TEST_MAIN(LastRunTest)
#include "lastrun_test.moc"
