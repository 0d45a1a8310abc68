#include "support/OrdaTest.h"

#include <ClientSession.h>
#include <ClientWindow.h>
#include <EmbeddedFleet.h>
#include <Families.h>
#include <LastRunWindow.h>
#include <RunRecord.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ClientSignals.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTableWidget>

#include <sys/stat.h>
#include <unistd.h>

using device_fleet::EmbeddedFleet;
using device_fleet::Fault;

namespace {

QString recordPath()
{
    return QDir::temp().filePath(findFamily(QStringLiteral("audio"))->recordFile);
}

QString entry(const char *serialNumber, const char *ip, const char *message, const char *name)
{
    return QStringLiteral("2026-03-04 05:06:07    %1    %2    %3                %4\n\n")
        .arg(QString::fromUtf8(serialNumber), QString::fromUtf8(ip).leftJustified(16), QString::fromUtf8(message),
             QString::fromUtf8(name));
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
    return window.findChild<Widget *>(QLatin1String(name));
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

    ClientSession session;
    ClientWindow window{&session};
    const LastRunWindow &lastRun() const { return *window.findChild<LastRunWindow *>(); }
    QAbstractItemModel *shown() const { return child<QTableView>(lastRun(), "record")->model(); }
};

} // namespace

/// The client's window of the last run, from the record's text to the second try.
class LastRunTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init()
    {
        OrdaTest::init();
        QFile::remove(recordPath());
    }

    void recordIsReadWhateverItsTextsHold_data();
    void recordIsReadWhateverItsTextsHold();
    void recordOfDoubtfulOriginIsNotRead_data();
    void recordOfDoubtfulOriginIsNotRead();
    void successIsKnownInEveryLanguage();
    void columnsSortAsPeopleReadThem();
    void failedDevicesAreConfiguredAtTheSecondTry();
};

void LastRunTest::recordIsReadWhateverItsTextsHold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected"); // outcome and fields
    const auto row = [](const char *what, const QString &text, const QStringList &expected) {
        QTest::newRow(what) << text << expected;
    };
    const QString next = entry("B", "10.0.0.2", "success", "next");
    const QString nextFields = QStringLiteral("2|B|10.0.0.2|success|next");
    const auto whole = [&](const char *what, const char *sn, const char *ip, const char *message, const char *name) {
        const QString fields = QString::fromUtf8(QByteArrayList{"0", sn, ip, message, name}.join('|'));
        row(what, entry(sn, ip, message, name) + next, {fields, nextFields});
    };
    whole("address", "SN 1", "10.20.30.40", "Failed to get audio parameters(-1)", "Cam 1");
    whole("widest address", "A", "255.255.255.255", "no", "Cam");
    whole("no address", "A", "", "no", "Cam");
    whole("IPv6 address, wider than its column", "A", "2001:db8::1234:5678:9abc", "no", "Cam");
    whole("host name", "A", "gate.site", "no", "Cam");
    whole("nothing but a result", "", "", "no", "");
    whole("nothing at all", "", "", "", "");
    whole("no result", "A", "10.0.0.1", "", "Cam");
    whole("gap in the serial number", "A    1", "10.0.0.1", "no", "Cam");
    whole("gap in the serial number, no address", "A    1", "", "no", "Cam");
    whole("blanks after the serial number", "A   ", "10.0.0.1", "no", "Cam");
    whole("blanks after the serial number, no address", "A   ", "", "no", "Cam");
    whole("address as serial number", "10.9.9.9", "10.0.0.1", "no", "Cam");
    whole("entry in the name", "A", "", "no", "X    10.0.0.7            success                Y");
    whole("gaps around the name", "A", "10.0.0.1", "no", "    Cam                    2  ");
    whole("lines in name and result", "A", "10.0.0.1", "no\nanswer", "Cam\n\n2026\n\nHall\n");

    const QString noSuchDay = QString(next).replace(QLatin1String("03-04"), QLatin1String("13-44"));
    const auto unreadable = [](const QString &text) { return QStringLiteral("1|||%1|").arg(text.trimmed()); };
    row("nothing", {}, {});
    row("foreign text", QStringLiteral("hello\n\n") + next, {unreadable(QStringLiteral("hello")), nextFields});
    row("no such day", noSuchDay + next, {unreadable(noSuchDay), nextFields});
    row("cut off in the result", next + next.left(50), {nextFields, unreadable(next.left(50))});
    row("cut off in the time", next + next.left(5), {nextFields, unreadable(next.left(5))});
    row("cut off, and another behind it", next.chopped(4) + next, {unreadable(next.chopped(4) + next)});
}

void LastRunTest::recordIsReadWhateverItsTextsHold()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    QStringList read;
    const QVector<RunEntry> entries = parseRunRecord(text, {QStringLiteral("success")});
    for (const RunEntry &entry : entries) {
        const QStringList fields{entry.serialNumber, entry.ip, entry.message, entry.name};
        read.append(QStringLiteral("%1|%2").arg(QString::number(entry.outcome), fields.join(QLatin1Char('|'))));
    }
    QCOMPARE(read, expected);
}

void LastRunTest::recordOfDoubtfulOriginIsNotRead_data()
{
    QTest::addColumn<QString>("said");
    for (const char *what : {"symbolic link", "not a regular file", "more than one name", "too large", "another user"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void LastRunTest::recordOfDoubtfulOriginIsNotRead()
{
    QFETCH(QString, said);
    const QString elsewhere = recordPath() + QStringLiteral(".elsewhere");
    append(entry("A", "10.0.0.1", "no", "Cam"));
    QFile::remove(elsewhere);
    const QByteArray path = QFile::encodeName(recordPath());
    if (said == QLatin1String("not a regular file"))
        QVERIFY(QFile::remove(recordPath()) && ::mkfifo(path.constData(), 0600) == 0);
    else if (said == QLatin1String("symbolic link"))
        QVERIFY(QFile::rename(recordPath(), elsewhere) && QFile::link(elsewhere, recordPath()));
    else if (said == QLatin1String("too large"))
        QVERIFY(QFile::resize(recordPath(), qint64(1) << 32));
    else if (said == QLatin1String("another user")) {
        if (::geteuid() != 0)
            QSKIP("only root can give a file away");
        QVERIFY(::chown(path.constData(), 65534, 65534) == 0);
    } else
        QVERIFY(::link(path.constData(), QFile::encodeName(elsewhere).constData()) == 0);

    const Client client;
    QCOMPARE(client.shown()->rowCount(), 0);
    QVERIFY(child<QLabel>(client.lastRun(), "empty")->text().contains(said));
}

void LastRunTest::successIsKnownInEveryLanguage()
{
    const QStringList texts = successTexts();
    for (const char *text : {"success", "erfolgreich", "成功"})
        QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
}

void LastRunTest::columnsSortAsPeopleReadThem()
{
    append(entry("3", "10.0.0.9", "success", "cam 10") + entry("1", "", "no", "cam 3")
           + entry("2", "10.0.0.10", "success", "Cam 2") + entry("4", "gate.site", "success", "Gate"));
    const Client client;
    const auto order = [&client] { return column(client.shown(), 2).join(QLatin1Char(' ')); };
    const auto sorted = [&](int by) {
        child<QTableView>(client.lastRun(), "record")->sortByColumn(by, Qt::AscendingOrder);
        return order();
    };
    QCOMPARE(order(), QStringLiteral("1 2 3 4")); // failures first
    QCOMPARE(sorted(1), QStringLiteral("2 1 3 4"));
    QCOMPARE(sorted(3), QStringLiteral("3 2 4 1"));
}

void LastRunTest::failedDevicesAreConfiguredAtTheSecondTry()
{
    device_fleet::FleetOptions options;
    options.devices = 30;
    EmbeddedFleet fleet(options);
    QCOMPARE(fleet.start(), QString());
    QList<vms_sdk::DevInfo> devices = fleet.inventory();
    devices[1].name = QStringLiteral("=1+\"1\";=2, north");
    const Client client;
    orda_data::DevsMgrData::instance().updateDevs(devices);
    auto *list = child<QTableWidget>(client.window, "devsTableWt");
    const auto itemOf = [list, &devices](int device) {
        return list->findItems(devices.at(device).serialNumber, Qt::MatchExactly).value(0);
    };
    const auto ticked = [list] {
        QStringList serialNumbers;
        for (int row = 0; row < list->rowCount(); ++row)
            if (list->item(row, 0)->checkState() == Qt::Checked && !list->isRowHidden(row))
                serialNumbers.append(list->item(row, 2)->text());
        serialNumbers.sort();
        return serialNumbers;
    };
    const auto configure = [&client] {
        child<QAbstractButton>(client.window, "audio_param")->click();
        child<QAbstractButton>(*child<QWidget>(client.window, "audioParametersPage"), "okBt")->click();
        child<QDialog>(client.window, "eventConfirmDialog")->reject();
    };
    QStringList failing;
    for (const int device : {1, 2, 4, 5}) {
        QTRY_VERIFY(itemOf(device));
        failing.append(devices.at(device).serialNumber);
        fleet.setFault(devices.at(device).id, QStringLiteral("ai_get_param"), {Fault::ErrorCode, -1});
    }
    QTRY_VERIFY(itemOf(0) && itemOf(6));
    fleet.setFault(devices.at(6).id, QStringLiteral("*"), {Fault::Garbage});

    const LastRunWindow &window = client.lastRun();
    const auto *shown = client.shown();
    auto *again = child<QAbstractButton>(window, "tickFailedAgain");
    QVERIFY(!again->isEnabled() && child<QLabel>(window, "empty")->text().startsWith(QLatin1String("No run yet")));
    child<QCheckBox>(client.window, "selAll")->click();
    configure();
    QCOMPARE(shown->rowCount(), ticked().size());

    // Groups, outcomes and search, and what of them is exported.
    auto *groups = child<QTableWidget>(window, "groups");
    QCOMPARE(column(groups->model(), 0).mid(1), QStringList({QStringLiteral("Failed to get audio in parameters(-1)"),
                                                             QStringLiteral("Failed to parse json data")}));
    groups->selectRow(1);
    failing.sort();
    QStringList grouped = column(shown, 2);
    grouped.sort();
    QCOMPARE(grouped, failing);
    groups->selectRow(0);
    child<QComboBox>(window, "outcomes")->setCurrentIndex(1);
    QCOMPARE(shown->rowCount(), 5);
    searchIn(window, "recordSearch")->setText(QStringLiteral("=1+"));
    child<QAbstractButton>(window, "exportCsv")->click();
    const QString exported = QDir::temp().filePath(QStringLiteral("failed.csv"));
    emit window.findChild<QFileDialog *>()->fileSelected(exported);
    QFile file(exported);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString row = column(shown, 4).constFirst() + QStringLiteral(",Failed to get audio in parameters(-1)\r\n");
    QCOMPARE(file.readAll(), QStringLiteral("\uFEFFOutcome,Name,Serial number,IP address,Time,Message\r\n"
                                            "Failed,\"'=1+\"\"1\"\";'=2, north\",%1,%2,%3")
                                 .arg(devices.at(1).serialNumber, devices.at(1).ip, row)
                                 .toUtf8());

    // The record grows by what leaves a doubt, two devices in the list have one number, another goes offline.
    append(entry("", "10.0.0.1", "no", "nameless"));
    QTRY_VERIFY(again->isEnabled() && groups->rowCount() == 4);
    append(entry("unknown", "10.0.0.1", "no", "stranger")
           + entry(qPrintable(devices.at(2).serialNumber), "10.0.0.1", "success", "twin") + QStringLiteral("2026-"));
    QTRY_COMPARE(groups->rowCount(), 5);
    itemOf(0)->setText(devices.at(6).serialNumber);
    fleet.setOnline(devices.at(4).id, false);
    QTRY_VERIFY(!itemOf(4));
    searchIn(client.window, "searchBox")->setText(devices.at(6).serialNumber);
    again->click();
    QStringList expected{devices.at(1).serialNumber, devices.at(5).serialNumber};
    expected.sort();
    QCOMPARE(ticked(), expected);
    QCOMPARE(searchIn(client.window, "searchBox")->text(), QString());
    QVERIFY(child<QLabel>(window, "tickReport")->text().startsWith(QLatin1String("Ticked 2 of 8")));
    QStringList left = child<QPlainTextEdit>(window, "tickReportList")->toPlainText().split(QLatin1Char('\n'));
    QCOMPARE(left.size(), 6);
    QCOMPARE(left.filter(QStringLiteral("not in the list")).size(), 2);
    QCOMPARE(left.filter(QStringLiteral("several devices of the run")).size(), 1);
    QCOMPARE(left.filter(QStringLiteral("several devices in the list")).size(), 1);
    QCOMPARE(left.filter(QStringLiteral("nameless: it has no serial number")).size(), 1);
    QCOMPARE(left.filter(QStringLiteral("2026-: its entry in the record cannot be read")).size(), 1);

    // The second run, in which the list is left alone.
    fleet.clearFaults();
    QStringList changed;
    const auto midRun =
        connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalCommonRes, this, [&] {
            if (changed.isEmpty()) {
                list->item(itemOf(1)->row(), 0)->setCheckState(Qt::Unchecked);
                again->click();
                changed = ticked();
            }
        });
    configure();
    disconnect(midRun);
    QCOMPARE(changed, QStringList(devices.at(5).serialNumber));
    searchIn(window, "recordSearch")->clear();
    child<QComboBox>(window, "outcomes")->setCurrentIndex(0);
    QCOMPARE(column(shown, 5), QStringList({QStringLiteral("success"), QStringLiteral("success")}));
    QVERIFY(!again->isEnabled());
}

ORDA_TEST_MAIN(LastRunTest)
#include "lastrun_test.moc"
