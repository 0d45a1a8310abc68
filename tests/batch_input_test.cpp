#include "batch/DeviceSelection.h"
#include "batch/KeyTable.h"
#include "batch/WantedValues.h"
#include "programs/Csv.h"
#include "support/OrdaTest.h"

#include <families/Families.h>

using namespace orda_batch;
using orda_batchCfg::Families;

namespace {

vms_sdk::DevInfo device(const char *id, const char *name, const char *ip, const char *group, int kindCode = 1)
{
    vms_sdk::DevInfo dev;
    dev.id = id;
    dev.name = name;
    dev.ip = ip;
    dev.group = group;
    dev.serialNumber = "SN-" + dev.id;
    dev.kindCode = kindCode;
    dev.accessCode = 1;
    return dev;
}

QList<vms_sdk::DevInfo> smallInventory()
{
    QList<vms_sdk::DevInfo> devices{
        device("c1", "Gate 1", "10.1.0.1", "north"),
        device("c2", "Gate 2", "10.1.0.2", "south"),
        device("c3", "Hall [1", "", "north"),
        device("c/4", "A/x,z", "10.2.0.2", ""),
        device("r1", "Rack", "10.2.0.3", "south", 6),
        device("d1", "Wall", "10.2.0.1", "south", 3),
        device("twin", "Far away", "10.1.0.9", "north"),
    };
    devices[2].serialNumber = "twin";
    devices[6].accessCode = 2;
    return devices;
}

QStringList failedIn(const QString &run, QString *error)
{
    if (run == "none")
        *error = "no run begins with \"none\"";
    return run == "last" ? QStringList{"c3", "c1"} : QString("x1 x2 x3 x4 x5 x6 x7").split(' ');
}

QString text(const DeviceSelection::Selected &selected)
{
    if (!selected.error.isEmpty())
        return (selected.isEmpty ? "empty: " : "") + selected.error;
    return selected.devIds.join(' ') + (selected.leftOut ? QString(" -%1").arg(selected.leftOut) : QString());
}

QString compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString text(const WantedValues &wanted)
{
    if (!wanted.errors.isEmpty())
        return wanted.errors.join(" ;; ");
    QStringList devices;
    for (const QString &devId : wanted.devIds())
        devices << devId + ' ' + compact(wanted.ownValues()[devId]);
    return wanted.isByDevice() ? devices.join(' ') : compact(wanted.values());
}

/// "osd", and with "!" where nothing is checked.
KeyTable tableOf(QString family)
{
    const bool isUnchecked = family.endsWith('!');
    return {*Families::find(family.remove('!')), isUnchecked};
}

} // namespace

/// What an engineer says on the command line about devices and values.
class BatchInputTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_dir.path())); }

    void selects_data()
    {
        columns<QString, QString>({"terms", "result"});
        rowsFrom("selections.txt");
    }

    void selects()
    {
        const QString terms = withFile(field("terms"));
        QString error, again;
        const DeviceSelection selection = DeviceSelection::parse(terms, &error);
        const DeviceSelection::Knowledge knowledge{[](auto id) { return id == "c1" || id == "r1"; }, failedIn};
        const auto inventory = smallInventory();
        QCOMPARE(error.isEmpty() ? text(selection.of(inventory, knowledge)) : error, field("result"));
        QCOMPARE(selection.needsConnections(), terms.contains("offered"));
        const QString atMost =
            QString(terms).remove(",not:offered").replace("not:offered", "all").replace("offered", "all");
        const DeviceSelection others = DeviceSelection::parse(atMost, &again);
        QCOMPARE(again, error);
        QCOMPARE(text(selection.connectTo(inventory, knowledge)), text(others.of(inventory, knowledge)));
    }

    void sharesAreDisjointAndComplete()
    {
        const QStringList ids{"T\u00fcr 7", "dev-0001", "dev-0002", "dev-0003"};
        const auto share = [&ids](int shard, int shards) { return shareOf(ids, shard, shards).join(','); };
        QCOMPARE(share(1, 3), "dev-0002,dev-0003"); // as Python's hashlib has it
        QCOMPARE(share(3, 3), "T\u00fcr 7");
        QCOMPARE(share(6, 7), "dev-0002");
        for (int shards = 1; shards <= 5; ++shards) {
            QStringList all;
            for (int shard = 1; shard <= shards; ++shard)
                all += shareOf(ids, shard, shards);
            all.sort();
            QCOMPARE(all, ids);
        }
    }

    void takesSettings_data()
    {
        columns<QString, QString, QString>({"family", "settings", "result"});
        rowsFrom("settings.txt");
    }

    void takesSettings()
    {
        const QStringList settings = decoded(field("settings")).split(" ; ");
        compare(WantedValues::fromSettings(settings, tableOf(field("family"))));
    }

    void readsFiles_data()
    {
        columns<QString, QString, QString>({"family", "content", "result"});
        rowsFrom("values_files.txt");
    }

    void readsFiles()
    {
        write(field("content"));
        WantedValues wanted = WantedValues::fromFile("FILE", tableOf(field("family")));
        wanted.assignTo(smallInventory());
        compare(wanted);
    }

    void tellsWhyAFileIsNotRead()
    {
        const auto error = [](const char *path) {
            return WantedValues::fromFile(path, tableOf("osd")).errors.join(" ;; ");
        };
        QFile large("LARGE");
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize((64 << 20) + 1));
        QCOMPARE(error("LARGE"), "LARGE: is larger than 64 MiB");
        QCOMPARE(error("."), ".: cannot be read: it is a directory");
        QCOMPARE(error("no\nfile"), "no\\u000afile: cannot be read: No such file or directory");
        write("device,bShowOSD\n" + QString("c1,7\n").repeated(60));
        QCOMPARE(error("FILE").section(" ;; ", 49),
                 "FILE:51:2: \"bShowOSD\" (7): must be true or false ;; and 10 more");
    }

    void whatThisProgramWritesComesBack()
    {
        for (const char *name :
             {"=1", "+a", "-x", "@b", "a;=b", "a|-b,c", "\"q\"", "\uFF1Dx", " before ", "'x", "a'=b"}) {
            write(orda_programs::csvLine({"device", "channelName"}) + orda_programs::csvLine({"c1", name}));
            WantedValues wanted = WantedValues::fromFile("FILE", tableOf("osd"));
            wanted.assignTo(smallInventory());
            QCOMPARE(wanted.errors.join(" ;; ") + wanted.ownValues()["c1"]["channelName"].toString(), name);
        }
    }

    void whatIsListedIsTaken()
    {
        for (const auto &entry : Families::all()) {
            const KeyTable table(entry.family, false);
            const QStringList names = table.names();
            for (int i = 0; i < names.size(); ++i) {
                const auto &key = entry.family.keys.at(i);
                QJsonArray values = table.choicesOf(names[i]);
                if (key.type == key.Number)
                    values = {key.minimum, key.maximum};
                else if (key.type == key.Text)
                    values = {QString(key.maximum, 'x')};
                const QString name = QString(names[i]).replace("streamN", "stream0");
                for (const QJsonValue &value : qAsConst(values)) {
                    QString error;
                    const QString word = value.toVariant().toString();
                    QCOMPARE(table.faultOfKey(name) + table.faultOf(name, value), "");
                    QCOMPARE(table.fromText(name, word, &error), value);
                    QVERIFY(key.type == key.Text || table.rangeOf(names[i]).contains(word));
                }
                QVERIFY(!values.isEmpty());
            }
        }
        const QStringList members{"stream1.bitRate", "stream0(2).venctype", "stream0.bitRate", "gop",
                                  "stream0.venctype"};
        QCOMPARE(tableOf("video").membersWithKey(members).join(' '),
                 "stream0.venctype stream0(2).venctype stream0.bitRate stream1.bitRate");
    }

private:
    static QString field(const char *name) { return *static_cast<QString *>(QTest::qData(name, QMetaType::QString)); }
    static QString decoded(QString text)
    {
        return text.replace("\\n", "\n").replace("\\r", "\r").replace("\\t", "\t").replace("\\ufeff", "\ufeff");
    }
    static void write(const QString &content)
    {
        QFile file("FILE");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(decoded(content).toUtf8().replace("\\xfc", "\xfc"));
    }
    /// Writes what stands behind the name of the file.
    static QString withFile(const QString &terms)
    {
        const int at = terms.indexOf("@FILE:");
        if (at < 0)
            return terms;
        write(terms.mid(at + 6));
        return terms.left(at + 5);
    }
    /// Lists of keys are compared where the row has one.
    static void compare(const WantedValues &wanted)
    {
        QString result = text(wanted);
        if (field("result").contains(QRegularExpression("keys of \\w+: …")))
            result.replace(QRegularExpression("(keys of \\w+): [\\w., ]*\\w"), "\\1: …");
        QCOMPARE(result, field("result"));
    }

    QTemporaryDir m_dir;
};

ORDA_TEST_MAIN(BatchInputTest)
#include "batch_input_test.moc"
