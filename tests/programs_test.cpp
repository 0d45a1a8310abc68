#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include <vms_client_sdk/Inventory.h>

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <csignal>

using namespace std::chrono_literals;

namespace {

QString program(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

/// Waits for a line that holds the text, and returns it.
QByteArray lineWith(QProcess &process, const QByteArray &text)
{
    for (;;) {
        while (process.canReadLine()) {
            const QByteArray line = process.readLine();
            if (line.contains(text))
                return line.trimmed();
        }
        if (!process.waitForReadyRead(10'000))
            return {};
    }
}

} // namespace

/// The two programs as processes: what they return, and what is left when one of them is killed.
class ProgramsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void clientTellsByItsExitCode_data();
    void clientTellsByItsExitCode();
    void killedClientLeavesARecordThatNoOtherTouched();
    void fullDiskIsCalledByItsName();
    void killedFleetIsUsedAgainWhenItIsBack();
    void twoClientsUseOneSiteAtOnce();
    void passwordsAreInTheInventoryOnly();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    void write(const char *name, const QByteArray &text) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    QTemporaryDir m_dir;
};

void ProgramsTest::clientTellsByItsExitCode_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("said"); // on either channel
    const auto row = [](const char *arguments, int exitCode, const char *said) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << exitCode << QString::fromLatin1(said);
    };
    row("--demo 10 --run osd", 0, "success:10, failure:0");
    row("--demo 10 --run osd --devices dev-0003,dev-0005", 0, "success:2, failure:0");
    row("--demo 10 --run osd --faults faults.json", 1, "success:9, failure:1");
    row("--demo 10 --run osd --devices dev-0003,nobody", 2, "there is no device \"nobody\"");
    row("--demo 10 --run sound", 2, "--run takes one of audio, video");
    row("--demo 0 --run osd", 2, "--demo takes a number of devices from 1 to 100000");
    row("--demo 10 --inventory x --run osd", 2, "exclude each other");
    row("--run osd", 2, "--run needs devices");
    row("--demo 10 --run osd --language xx", 2, "--language takes one of");
    row("--demo 10 --colour", 2, "colour");
    row("--inventory nothing.json --run osd", 3, "nothing.json: cannot be read");
    row("--inventory . --run osd", 3, "cannot be read");
    row("--inventory open.json --run osd", 3, "open.json: holds passwords and may be read or changed");
    row("--demo 10 --faults inventory.json --run osd", 3, "inventory.json: field \"faults\": must be a list");
    row("--inventory empty.json --run osd", 4, "Please select the devices to be configured");
    row("--demo 10 --run osd --devices dev-0001 --faults away.json", 1, "failure:1");
}

void ProgramsTest::clientTellsByItsExitCode()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, said);
    write("faults.json", R"({"faults": [{"devices": ["dev-0002"], "fault": "error-code", "errorcode": 9}, {"devices":
        ["\u001b[31m"], "fault": "garbage", "\u001b": 0}], "\u001b[32m": 0})");
    write("away.json", R"({"faults": [{"fault": "garbage"}]})");
    write("empty.json", R"({"devices": [], "\u001b[31m": 0})");
    write("inventory.json", R"({"devices": [{"id": "a", "ip": "127.0.0.1", "port": 1}]})");
    write("open.json", R"({"devices": [{"id": "a", "ip": "127.0.0.1", "port": 1, "password": "secret"}]})");
    QVERIFY(QFile::setPermissions(path("open.json"), QFile::ReadOwner | QFile::ReadOther));

    QProcess client;
    client.setWorkingDirectory(m_dir.path());
    client.setProcessChannelMode(QProcess::MergedChannels);
    client.start(program("orda_client"), arguments.split(QLatin1Char(' ')));
    QVERIFY(client.waitForFinished());
    const QString output = QString::fromUtf8(client.readAll());
    QVERIFY2(output.contains(said), qPrintable(output));
    QVERIFY(!output.contains(QLatin1String("secret")));
    QVERIFY2(!output.contains(QLatin1Char('\x1b')), qPrintable(output)); // a terminal would obey it
    QCOMPARE(client.exitCode(), exitCode);
}

void ProgramsTest::killedClientLeavesARecordThatNoOtherTouched()
{
    write("silent.json", R"({"faults": [{"devices": ["dev-0002", "dev-0004"], "fault": "no-answer"}]})");
    QProcess client;
    client.start(program("orda_client"), {QStringLiteral("--demo"), QStringLiteral("8"), QStringLiteral("--run"),
                                          QStringLiteral("osd"), QStringLiteral("--faults"), path("silent.json")});
    QVERIFY(!lineWith(client, "Configuring(6/8)").isEmpty());
    QByteArray said;
    const auto another = [&said](const char *family) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program("orda_client"), {QStringLiteral("--demo"), QStringLiteral("3"), QStringLiteral("--run"),
                                               QString::fromLatin1(family)});
        process.waitForFinished();
        said = process.readAll();
        return process.exitCode();
    };
    QCOMPARE(another("osd"), 5);
    QVERIFY2(said.contains("in use by process " + QByteArray::number(client.processId()) + " (orda_client)"), said);
    QVERIFY2(!said.contains("Configuring(") && !said.contains("total of"), said);
    QCOMPARE(another("network"), 0);
    ::kill(pid_t(client.processId()), SIGKILL);
    client.waitForFinished();
    const QMap<QString, QString> recorded = recordedMessages(familyRow(QStringLiteral("osd")));
    QCOMPARE(recorded.size(), 6);
    QCOMPARE(int(std::count(recorded.begin(), recorded.end(), QStringLiteral("success"))), 6);
    QCOMPARE(another("osd"), 0); // the dead one's lock is gone
}

void ProgramsTest::fullDiskIsCalledByItsName()
{
    QProcess client; // over a disk of one page, in a world of its own
    client.setWorkingDirectory(m_dir.path());
    client.start(
        QStringLiteral("unshare"),
        {QStringLiteral("--map-root-user"), QStringLiteral("--mount"), QStringLiteral("sh"), QStringLiteral("-c"),
         QStringLiteral("mkdir full && mount -t tmpfs -o size=4k tmpfs full && TMPDIR=$PWD/full exec %1 --demo 80 "
                        "--run osd || exit 77")
             .arg(program("orda_client"))});
    QVERIFY(client.waitForFinished());
    const QByteArray out = client.readAllStandardOutput();
    if (client.exitStatus() == QProcess::NormalExit && !out.contains("window shown"))
        QSKIP("no disk can be made here");
    QCOMPARE(client.exitStatus(), QProcess::NormalExit);
    const QByteArray error = client.readAllStandardError();
    QCOMPARE(client.exitCode(), 6);
    QVERIFY2(error.contains("No space left on device"), error);
    QVERIFY(out.contains(", failure:0"));
    const int kept = out.mid(out.indexOf("record: ")).count("\n\n");
    QVERIFY2(kept > 10 && error.contains("only " + QByteArray::number(kept) + " results"), error);
}

void ProgramsTest::twoClientsUseOneSiteAtOnce()
{
    const QString inventory = path("shared.json");
    QProcess fleet;
    fleet.start(program("orda_fleet"), {QStringLiteral("--devices"), QStringLiteral("20"), QStringLiteral("--latency"),
                                        QStringLiteral("300"), QStringLiteral("--inventory"), inventory});
    QVERIFY(!lineWith(fleet, "20 devices").isEmpty());
    QProcess audio, osd;
    audio.start(program("orda_client"),
                {QStringLiteral("--inventory"), inventory, QStringLiteral("--run"), QStringLiteral("audio")});
    QVERIFY(!lineWith(audio, "Configuring").isEmpty());
    osd.start(program("orda_client"),
              {QStringLiteral("--inventory"), inventory, QStringLiteral("--run"), QStringLiteral("osd")});
    for (QProcess *client : {&audio, &osd}) {
        QVERIFY(client->waitForFinished());
        QCOMPARE(client->exitCode(), 0);
    }
    fleet.terminate();
    fleet.waitForFinished();
}

void ProgramsTest::killedFleetIsUsedAgainWhenItIsBack()
{
    const QString inventory = path("fleet.json");
    const auto start = [&inventory](QProcess &fleet, const QByteArray &port) {
        fleet.start(program("orda_fleet"),
                    {QStringLiteral("--devices"), QStringLiteral("20"), QStringLiteral("--latency"),
                     QStringLiteral("200"), QStringLiteral("--port"), QString::fromLatin1(port),
                     QStringLiteral("--inventory"), inventory});
        return lineWith(fleet, "20 devices");
    };
    QProcess fleet;
    QVERIFY(!start(fleet, "0").isEmpty());
    const QList<vms_sdk::DevInfo> devices = vms_sdk::readInventory(inventory).devices;
    const SiteClient client(devices, 1s);
    QTRY_VERIFY(client.table()->rowCount() >= 17);
    client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
    const int total = client.form.checkedDevIds().size();

    QProcess again;
    QTimer::singleShot(250ms, &fleet, [&] { // between the reads' answers and the writes'
        ::kill(pid_t(fleet.processId()), SIGKILL);
        fleet.waitForFinished();
        start(again, QByteArray::number(devices.constFirst().port));
    });
    const QString summary = QStringLiteral("A total of %1 devices have been configured, success:%2, failure:%3");
    const FamilyRow &family = familyRow(QStringLiteral("osd"));
    QCOMPARE(client.configure(family), summary.arg(total).arg(0).arg(total));
    QTRY_VERIFY(client.table()->rowCount() >= total);
    client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
    QCOMPARE(client.configure(family), summary.arg(total).arg(total).arg(0));
    again.terminate();
    again.waitForFinished();
}

void ProgramsTest::passwordsAreInTheInventoryOnly()
{
    const QString inventory = path("secret.json");
    const QString dump = path("dump.json");
    QProcess fleet, client;
    for (QProcess *process : {&fleet, &client}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("orda.*=true"));
        process->setProcessEnvironment(environment);
        process->setProcessChannelMode(QProcess::MergedChannels);
    }
    fleet.start(program("orda_fleet"), {QStringLiteral("--devices"), QStringLiteral("20"),
                                        QStringLiteral("--inventory"), inventory, QStringLiteral("--dump"), dump});
    QVERIFY(!lineWith(fleet, "20 devices").isEmpty());
    client.start(program("orda_client"),
                 {QStringLiteral("--inventory"), inventory, QStringLiteral("--run"), QStringLiteral("osd")});
    QVERIFY(client.waitForFinished());
    fleet.terminate();
    QVERIFY(fleet.waitForFinished());
    QByteArray said = client.readAll() + fleet.readAll();
    QVERIFY(said.contains("chnosd_set_param"));
    for (const QString &name : {dump, recordPath(familyRow(QStringLiteral("osd")))}) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        said += file.readAll();
    }
    const QList<vms_sdk::DevInfo> devices = vms_sdk::readInventory(inventory).devices;
    QCOMPARE(devices.size(), 20);
    for (const vms_sdk::DevInfo &dev : devices)
        QVERIFY2(!said.contains(dev.password.toUtf8()), qPrintable(dev.id));
    QVERIFY(!said.contains("\"proof\""));
}

ORDA_TEST_MAIN(ProgramsTest)
#include "programs_test.moc"
