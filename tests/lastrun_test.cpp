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
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using device_fleet::EmbeddedFleet;
using device_fleet::Fault;

namespace {

QString recordPath()
{
    return QDir::temp().filePath(findFamily(QStringLiteral("audio"))->recordFile);
}

QString now()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QString entry(const char *serialNumber, const char *ip, const char *message, const char *name,
              const QString &time = QStringLiteral("2026-03-04 05:06:07"))
{
    return QStringLiteral("%1    %2    %3    %4                %5\n\n")
        .arg(time, QString::fromUtf8(serialNumber), QString::fromUtf8(ip).leftJustified(16), QString::fromUtf8(message),
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
    void init()
    {
        OrdaTest::init();
        QFile::remove(recordPath());
    }

    void recordIsReadWhateverItsTextsHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected"); // outcome and fields
        const auto row = [](const char *what, const QString &text, const QStringList &expected) {
            QTest::newRow(what) << text << expected;
        };
        const QString next = entry("B", "10.0.0.2", "success", "next");
        const QString nextFields = QStringLiteral("2|B|10.0.0.2|success|next");
        const auto whole = [&](const char *what, const char *sn, const char *ip, const char *message,
                               const char *name) {
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
        const QString old = QString(next).replace(QLatin1String("2026"), QLatin1String("2001"));
        row("time goes back", next + old + next + next, {unreadable(next), unreadable(old), nextFields, nextFields});
        row("cut off, and another behind it", next.chopped(4) + next, {unreadable(next.chopped(4) + next)});
    }

    void recordIsReadWhateverItsTextsHold()
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

    void fieldsDoNotTurnAFailureIntoASuccess_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 60; ++seed)
            QTest::addRow("%d", seed) << seed;
    }

    void fieldsDoNotTurnAFailureIntoASuccess()
    {
        QFETCH(int, seed);
        QRandomGenerator random(quint32(seed) + 1);
        const QString gap = QStringLiteral("    ");
        const QString success = QStringLiteral("10.0.0.1            success");
        const QString whole = QStringLiteral("A    ") + success + QStringLiteral("                B");
        const auto next = [](const char *time) { return QStringLiteral("\n\n%1    ").arg(QLatin1String(time)); };
        const QStringList parts{QStringLiteral("A"),
                                QStringLiteral("10.0.0.1"),
                                QStringLiteral("gate"),
                                QStringLiteral(" "),
                                gap,
                                gap + gap + gap,
                                gap + gap + gap + gap,
                                QStringLiteral("success"),
                                success,
                                whole,
                                QStringLiteral("\n\n"),
                                next("2001-02-03 04:05:06"),
                                next("2001-13-44 04:05:06"),
                                next("2099-02-03 04:05:06")};
        const auto field = [&] {
            QString text;
            for (int count = random.bounded(6); count > 0; --count)
                text += parts.at(random.bounded(parts.size()));
            return text.toUtf8();
        };
        const QStringList successTexts{QStringLiteral("success")};
        for (int i = 0; i < 300; ++i) {
            QByteArray message = random.bounded(2) ? QByteArray("no") : field();
            if (message.trimmed() == "success")
                message = "no";
            const QString own = entry(field(), field(), message, field());
            const QString text = own + entry("B", "10.0.0.2", "success", "next");
            const auto read = parseRunRecord(text.toUtf8(), {own.size(), text.size()}, successTexts);
            QCOMPARE(read.size(), 2);
            QVERIFY2(read.at(0).outcome != RunEntry::Succeeded && read.at(1).outcome == RunEntry::Succeeded,
                     qPrintable(own));
            const auto guessed = parseRunRecord(text, successTexts, QStringLiteral("2026-03-05 00:00:00"));
            for (const RunEntry &entry : guessed)
                QVERIFY2(entry.outcome != RunEntry::Succeeded || entry.serialNumber == QLatin1String("B"),
                         qPrintable(own));
        }
    }

    void recordOfDoubtfulOriginIsNotRead_data()
    {
        QTest::addColumn<QString>("said");
        for (const char *what :
             {"symbolic link", "not a regular file", "more than one name", "too large", "another user"})
            QTest::newRow(what) << QString::fromLatin1(what);
    }

    void recordOfDoubtfulOriginIsNotRead()
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

    void successIsKnownInEveryLanguage()
    {
        const QStringList texts = successTexts();
        for (const char *text : {"success", "erfolgreich", "成功"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
    }

    void columnsSortAsPeopleReadThem()
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

    void failedDevicesAreConfiguredAtTheSecondTry()
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
        QCOMPARE(column(groups->model(), 0).mid(1),
                 QStringList({QStringLiteral("Failed to get audio in parameters(-1)"),
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
        const QString row =
            column(shown, 4).constFirst() + QStringLiteral(",Failed to get audio in parameters(-1)\r\n");
        QCOMPARE(file.readAll(), QStringLiteral("\uFEFFOutcome,Name,Serial number,IP address,Time,Message\r\n"
                                                "Failed,\"'=1+\"\"1\"\";'=2, north\",%1,%2,%3")
                                     .arg(devices.at(1).serialNumber, devices.at(1).ip, row)
                                     .toUtf8());

        // The record grows by what leaves a doubt, two devices in the list have one number, another goes offline.
        append(entry("", "10.0.0.1", "no", "nameless", now()));
        QTRY_VERIFY(again->isEnabled() && groups->rowCount() == 4);
        append(entry("unknown", "10.0.0.1", "no", "stranger", now())
               + entry(qPrintable(devices.at(2).serialNumber), "10.0.0.1", "success", "twin", now())
               + QStringLiteral("2026-"));
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

    void runThatLostItsRecordIsShownAsSuch()
    {
        const QTemporaryDir programs; // an opener that finds no viewer
        const QString seen = programs.filePath(QStringLiteral("seen"));
        QFile opener(programs.filePath(QStringLiteral("xdg-open")));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\necho \"$1\" >\"${0%/*}/seen\"\nexit 3\n");
        opener.close();
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(programs.path()));

        device_fleet::FleetOptions options;
        options.devices = 2;
        EmbeddedFleet fleet(options);
        QCOMPARE(fleet.start(), QString());
        QList<vms_sdk::DevInfo> devices = fleet.inventory();
        // Times as of this very run, so that nothing but the writer's word tells that these are no entries.
        devices[0].name = QStringLiteral("X\n\n%1    SN    10.0.0.1            success                Y").arg(now());
        fleet.setFault(devices.at(0).id, QStringLiteral("*"), {Fault::Garbage});
        ClientSession session;
        ClientWindow window(&session);
        window.show();
        orda_data::DevsMgrData::instance().updateDevs(devices);
        auto *list = child<QTableWidget>(window, "devsTableWt");
        QTRY_COMPARE(list->rowCount(), 2);
        child<QAbstractButton>(window, "audio_param")->click();
        child<QCheckBox>(window, "selAll")->click();
        auto *page = child<QWidget>(window, "audioParametersPage");
        const auto lastRun = [&window] { return window.findChild<LastRunWindow *>(); };
        const auto report = [&] { child<QAbstractButton>(*page, "reportBt")->click(); };

        child<QAbstractButton>(*page, "okBt")->click();
        child<QDialog>(window, "eventConfirmDialog")->reject();
        report();
        QTRY_VERIFY(lastRun());
        qputenv("PATH", path);
        QFile file(seen);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QFile::encodeName(recordPath()) + '\n');
        auto *record = child<QTableView>(*lastRun(), "record");
        QStringList outcomes = column(record->model(), 0);
        outcomes.sort();
        QVERIFY2(outcomes.size() == 2 && outcomes.filter(QStringLiteral("Succeeded")).size() == 1,
                 qPrintable(outcomes.join(QLatin1Char(' '))));

        // A run that cannot write: what another has put there is not shown, and Report opens the window.
        QVERIFY(QFile::rename(recordPath(), recordPath() + QStringLiteral(".elsewhere"))
                && QFile::link(recordPath() + QStringLiteral(".elsewhere"), recordPath()));
        lastRun()->close();
        QTRY_VERIFY(!lastRun());
        expectWarning(QStringLiteral("it is a symbolic link"));
        child<QAbstractButton>(*page, "okBt")->click();
        auto *summary = child<QDialog>(window, "eventConfirmDialog");
        QVERIFY(summary->accessibleDescription().contains(
            QLatin1String("success:1, failure:1\nThe last run left no record")));
        const auto labels = summary->findChildren<QLabel *>();
        for (const QLabel *label : labels) // the dialog has grown
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
        summary->reject();
        report();
        QVERIFY(lastRun());
        QCOMPARE(child<QTableView>(*lastRun(), "record")->model()->rowCount(), 0);
        QVERIFY(child<QLabel>(*lastRun(), "empty")->text().contains(QLatin1String("it is a symbolic link")));
    }
};

ORDA_TEST_MAIN(LastRunTest)
#include "lastrun_test.moc"
