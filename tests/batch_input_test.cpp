#include "batch/DeviceSelection.h"
#include "batch/KeyTable.h"
#include "batch/WantedValues.h"
#include "programs/Csv.h"
#include "support/OrdaTest.h"

#include <families/Families.h>
#include <vms_client_sdk/Inventory.h>

using namespace orda_batch;
using orda_batchCfg::Families;

namespace {

const QList<vms_sdk::DevInfo> &smallInventory()
{
    static const auto inventory = vms_sdk::readInventory(QFINDTESTDATA("cases/small_inventory.json"));
    return inventory.devices;
}

/// Two devices, or some that are gone.
QStringList failedIn(const QString &run, QString *error)
{
    *error = run == "none" ? "no run begins with \"none\"" : "";
    return QString(run == "last" ? "c3 c1" : "x1 x2 x3 x4 x5 x6 x7").split(' ');
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

/// With the values for the devices that are named.
QString text(WantedValues wanted)
{
    wanted.assignTo(smallInventory());
    QStringList devices;
    for (const QString &devId : wanted.devIds())
        devices << devId + ' ' + compact(wanted.ownValues()[devId]);
    if (!wanted.errors.isEmpty())
        return wanted.errors.join(" ;; ");
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
        const QStringList written = decoded(field("terms")).split("FILE:"); // and what the file holds
        write(written.last());
        const QString terms = written.first() + (written.size() > 1 ? "FILE" : "");
        QString error;
        const DeviceSelection selection = DeviceSelection::parse(terms, &error);
        const DeviceSelection::Knowledge knowledge{[](auto id) { return id == "c1" || id == "r1"; }, failedIn};
        QCOMPARE(error.isEmpty() ? text(selection.of(smallInventory(), knowledge)) : error, field("result"));
        const QString atMost =
            QString(terms).remove(",not:offered").replace("not:offered", "all").replace("offered", "all");
        const DeviceSelection others = DeviceSelection::parse(atMost, &error);
        QCOMPARE(text(selection.connectTo(smallInventory(), knowledge)), text(others.of(smallInventory(), knowledge)));
    }

    void sharesAreDisjointAndComplete()
    {
        const QStringList ids{"T\u00fcr 7", "dev-0001", "dev-0002", "dev-0003"};
        QCOMPARE(shareOf(ids, 1, 3).join(','), "dev-0002,dev-0003"); // as Python's hashlib has it
        QCOMPARE(shareOf(ids, 6, 7).join(','), "dev-0002");
        for (int shards = 1; shards <= 5; ++shards) {
            QStringList all;
            for (int shard = 1; shard <= shards; ++shard)
                all += shareOf(ids, shard, shards);
            all.sort();
            QCOMPARE(all, ids);
        }
    }

    void takesValues_data()
    {
        columns<QString, QString, QString>({"family", "given", "result"});
        rowsFrom("settings.txt");
        rowsFrom("values_files.txt");
    }

    void takesValues()
    {
        const KeyTable keys = tableOf(field("family"));
        const QString given = decoded(field("given"));
        write(given);
        QString result =
            text(given.startsWith("--set ") ? WantedValues::fromSettings(given.mid(6).split(" --set "), keys)
                                            : WantedValues::fromFile("FILE", keys));
        if (field("result").contains(QRegularExpression("keys of \\w+: …"))) // few rows have the whole list
            result.replace(QRegularExpression("(keys of \\w+): [\\w., ]*\\w"), "\\1: …");
        QCOMPARE(result, field("result"));
    }

    void tellsWhyAFileIsNotRead()
    {
        const auto error = [](const char *path) { return text(WantedValues::fromFile(path, tableOf("osd"))); };
        QFile large("LARGE");
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize((64 << 20) + 1));
        QCOMPARE(error("LARGE"), "LARGE: is larger than 64 MiB");
        QCOMPARE(error("."), ".: cannot be read: it is a directory");
        QCOMPARE(error("no\nfile"), "no\\u000afile: cannot be read: No such file or directory");
        write("device,bShowOSD\n" + QString("c1,7\n").repeated(60));
        QCOMPARE(error("FILE").split(" ;; ").size(), 60 + 59); // all values, and the device again and again
    }

    void whatThisProgramWritesComesBack()
    {
        for (const char *name :
             {"=1", "+a", "-x", "@b", "a;=b", "a|-b,c", "\"q\"", "\uFF1Dx", " before ", "'x", "a'=b"}) {
            write(orda_programs::csvLine({"device", "channelName"}) + orda_programs::csvLine({"c1", name}));
            const QString expected = "c1 " + compact({{"channelName", name}});
            QCOMPARE(text(WantedValues::fromFile("FILE", tableOf("osd"))), expected);
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
        return text.replace("\\n", "\n").replace("\\r", "\r").replace("\\t", "\t").replace("\\ufeff", QChar(0xfeff));
    }
    static void write(const QString &content)
    {
        QFile file("FILE");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content.toUtf8().replace("\\xfc", "\xfc"));
    }

    QTemporaryDir m_dir;
};

ORDA_TEST_MAIN(BatchInputTest)
#include "batch_input_test.moc"
