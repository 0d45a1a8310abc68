#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include <vms_client_sdk/Inventory.h>

#include <algorithm>
#include <csignal>

using namespace std::chrono_literals;

namespace {

/// Starts one of our programs.
void start(QProcess &process, const QString &command)
{
    QStringList words = command.split(' ');
    process.start(QCoreApplication::applicationDirPath() + '/' + words.takeFirst(), words);
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

/// The fleet's program with 20 devices.
class FleetProcess : public QProcess
{
public:
    explicit FleetProcess(const QString &options)
    {
        setProcessChannelMode(QProcess::MergedChannels);
        ::start(*this, "orda_fleet --devices 20 " + options);
        lineWith(*this, "20 devices");
    }
    ~FleetProcess() override
    {
        terminate();
        waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(FleetProcess)
};

QJsonObject fleetDump(const device_fleet::EmbeddedFleet &fleet)
{
    return fleet.dump().value("devices").toObject();
}

/// Paths of the members in which two values differ, 0, 1, … for the elements of an array.
QStringList differences(const QVariant &before, const QVariant &after, const QString &path = {})
{
    const auto members = [](const QVariant &value) {
        QVariantMap map = value.toMap();
        const QVariantList list = value.toList();
        for (int i = 0; i < list.size(); ++i)
            map.insert(QString::number(i), list.at(i));
        return map;
    };
    const QVariantMap was = members(before), is = members(after);
    if (was.isEmpty() || is.isEmpty())
        return before == after ? QStringList() : QStringList(path);
    QStringList paths, keys = was.keys();
    keys += is.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys))
        paths += differences(was.value(key), is.value(key), path + '/' + key);
    return paths;
}

} // namespace

/// The module and the two programs against devices behind real sockets: what changes on the devices, what the programs
/// return, and what is left when one of them is killed.
class ProgramsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void changesWhatWasTickedAndNothingElse_data()
    {
        columns<QString, QString>({"boxes", "changes"});
        rowsFrom("changes.txt");
    }

    void changesWhatWasTickedAndNothingElse()
    {
        const FamilyRow &family = familyRow(QString::fromLatin1(QTest::currentDataTag()));
        QFETCH(QString, boxes);
        QFETCH(QString, changes);
        const FleetSite site(40);
        const SiteClient &client = site.client;
        QTRY_VERIFY(client.table()->rowCount() >= 30);
        QSet<QString> ticked;
        for (int row = 3; row < 28; ++row) {
            client.table()->item(row, 0)->setCheckState(Qt::Checked);
            ticked.insert(client.idInRow(row));
        }
        const QStringList wanted = boxes.split(' ');
        const auto all = client.form.findChild<QWidget *>(family.pageName)->findChildren<QCheckBox *>();
        for (QCheckBox *box : all)
            if (box->isChecked() && !box->objectName().startsWith("all") && !wanted.contains(box->objectName()))
                box->click();

        const QJsonObject before = fleetDump(site.fleet);
        QCOMPARE(client.configure(family), summaryOf(25, 0));
        const QJsonObject after = fleetDump(site.fleet);
        const QRegularExpression expected(changes);
        int changed = 0;
        for (auto it = before.begin(); it != before.end(); ++it) {
            const QStringList paths = differences(it.value().toVariant(), after.value(it.key()).toVariant());
            changed += paths.size();
            QVERIFY2(paths.isEmpty() || ticked.contains(it.key()), qPrintable(it.key()));
            for (const QString &path : paths)
                QVERIFY2(expected.match(path).hasMatch(), qPrintable(path));
        }
        QVERIFY(changed > 0);
    }

    void deviceInAnotherLanguageIsConfigured()
    {
        QProcess device;
        device.start("/usr/bin/python3",
                     {QStringLiteral(PYTHON_DEVICE), "--serial", "PY-1", "--password", "Schlüssel 1"});
        QTRY_VERIFY(device.canReadLine());
        const QByteArray port = device.readLine().trimmed().split(' ').constLast();

        write("python.json", "{'devices': [{'id': 'python', 'serialNumber': 'PY-1', 'ip': '127.0.0.1', 'port': " + port
                                 + ", 'userName': 'admin', 'password': 'Schlüssel 1'}]}");
        const SiteClient client(vms_sdk::readInventory(path("python.json")).devices);
        QTRY_COMPARE(client.table()->rowCount(), 1);
        client.tickAll();
        auto *page = client.form.findChild<QWidget *>("audioParametersPage");
        page->findChild<QCheckBox *>("alarmOutVolume")->click();
        QCOMPARE(client.configure(familyRow("audio")), summaryOf(1, 0));
        device.kill();
        device.waitForFinished();
        QTRY_COMPARE(client.table()->rowCount(), 0);
    }

    void programsTellByTheirExitCode_data()
    {
        columns<QString, QString>({"exitCode", "said"});
        rowsFrom("exit_codes.txt");
    }

    void programsTellByTheirExitCode()
    {
        QFETCH(QString, said);
        write("faults.json", "{'faults': [{'devices': ['dev-0002'], 'fault': 'error-code', 'errorcode': 9}, "
                             "{'devices': ['\\u001b[31m'], 'fault': 'garbage', '\\u001b': 0}], '\\u001b[32m': 0}");
        write("away.json", "{'faults': [{'fault': 'garbage'}]}");
        write("empty.json", "{'devices': [], '\\u001b[31m': 0}");
        write("inventory.json", "{'devices': [{'id': 'a', 'ip': '127.0.0.1', 'port': 1}]}");
        write("open.json", "{'devices': [{'id': 'a', 'ip': '127.0.0.1', 'port': 1, 'password': 'secret'}]}");
        QVERIFY(QFile::setPermissions(path("open.json"), QFile::ReadOwner | QFile::ReadOther));

        QProcess program;
        program.setWorkingDirectory(m_dir.path());
        start(program, QTest::currentDataTag());
        QVERIFY(program.waitForFinished());
        const QString output = QString::fromUtf8(program.readAllStandardOutput());
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2((program.exitCode() < 2 ? output : errors).contains(said), qPrintable(output + errors));
        QVERIFY(!(output + errors).contains("secret"));
        QVERIFY2(!(output + errors).contains('\x1b'), qPrintable(output + errors)); // a terminal would obey it
        QTEST(QString::number(program.exitCode()), "exitCode");
    }

    void killedClientLeavesARecordThatNoOtherTouched()
    {
        write("silent.json", "{'faults': [{'devices': ['dev-0002', 'dev-0004'], 'fault': 'no-answer'}]}");
        QProcess client;
        start(client, "orda_client --demo 8 --run osd --faults " + path("silent.json"));
        QVERIFY(!lineWith(client, "Configuring(6/8)").isEmpty());
        QByteArray said;
        const auto another = [&said](const char *family) {
            QProcess process;
            process.setProcessChannelMode(QProcess::MergedChannels);
            start(process, QString("orda_client --demo 3 --run ") + family);
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
        const QMap<QString, QString> recorded = recordedMessages(familyRow("osd"));
        QCOMPARE(recorded.size(), 6);
        QCOMPARE(int(std::count(recorded.begin(), recorded.end(), "success")), 6);
        QFile history(qEnvironmentVariable("XDG_STATE_HOME") + "/orda/history.db");
        QVERIFY(history.open(QIODevice::WriteOnly) && history.write("damaged") == 7);
        history.close();
        QFile::remove(history.fileName() + "-wal");
        QCOMPARE(another("osd"), 0); // the dead one's lock is gone; a history set aside stops nothing
        QVERIFY2(said.contains("history.db is damaged"), said);
    }

    void fullDiskIsCalledByItsName()
    {
        QProcess client; // over a disk of one page, in a world of its own
        client.setWorkingDirectory(m_dir.path());
        const QString command = "mkdir full && mount -t tmpfs -o size=4k tmpfs full && "
                                "TMPDIR=$PWD/full exec %1/orda_client --demo 80 --run osd || exit 77";
        client.start("unshare",
                     {"--map-root-user", "--mount", "sh", "-c", command.arg(QApplication::applicationDirPath())});
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

    void killedFleetIsUsedAgainWhenItIsBack()
    {
        const QString options = "--latency 200 --inventory " + path("fleet.json") + " --port ";
        FleetProcess fleet(options + '0');
        const QList<vms_sdk::DevInfo> devices = vms_sdk::readInventory(path("fleet.json")).devices;
        const SiteClient client(devices, 1s);
        QTRY_VERIFY(client.table()->rowCount() >= 17);
        client.tickAll();
        const int total = client.form.checkedDevIds().size();

        std::unique_ptr<FleetProcess> again;
        QTimer::singleShot(250ms, &fleet, [&] { // between the reads' answers and the writes'
            fleet.kill();
            fleet.waitForFinished();
            again = std::make_unique<FleetProcess>(options + QString::number(devices.constFirst().port));
        });
        const FamilyRow &family = familyRow("osd");
        QCOMPARE(client.configure(family), summaryOf(0, total));
        QTRY_VERIFY(client.table()->rowCount() >= total);
        client.tickAll();
        QCOMPARE(client.configure(family), summaryOf(total, 0));
    }

    /// Two clients use the site at once.
    void passwordsAreInTheInventoryOnly()
    {
        qputenv("QT_LOGGING_RULES", "orda.*=true");
        const QString inventory = path("secret.json"), dump = path("dump.json");
        FleetProcess fleet("--latency 300 --inventory " + inventory + " --dump " + dump);
        QProcess audio, osd;
        QByteArray said;
        for (QProcess *client : {&audio, &osd}) {
            client->setProcessChannelMode(QProcess::MergedChannels);
            start(*client,
                  "orda_client --inventory " + inventory + " --yes --run " + (client == &osd ? "osd" : "audio"));
        }
        for (QProcess *client : {&audio, &osd}) {
            QVERIFY(client->waitForFinished());
            QCOMPARE(client->exitCode(), 0);
            said += client->readAll();
        }
        fleet.terminate();
        QVERIFY(fleet.waitForFinished());
        qunsetenv("QT_LOGGING_RULES");
        said += fleet.readAll();
        QVERIFY(said.contains("chnosd_set_param"));
        for (const QString &name : {dump, recordPath(familyRow("osd"))}) {
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

private:
    QString path(const char *name) const { return m_dir.filePath(name); }

    void write(const char *name, QByteArray text) const // apostrophes stand for quotation marks
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.replace('\'', '"')) == text.size());
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    }

    QTemporaryDir m_dir;
};

ORDA_TEST_MAIN(ProgramsTest)
#include "programs_test.moc"
