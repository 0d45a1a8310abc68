#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include "fleet/EmbeddedFleet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTableWidget>

using device_fleet::EmbeddedFleet;

namespace {

QJsonObject fleetDump(const EmbeddedFleet &fleet)
{
    return fleet.dump().value(QLatin1String("devices")).toObject();
}

QJsonObject byIndex(const QJsonArray &array)
{
    QJsonObject object;
    for (int i = 0; i < array.size(); ++i)
        object.insert(QString::number(i), array.at(i));
    return object;
}

// Paths of the members in which two values differ.
QStringList differences(const QJsonValue &before, const QJsonValue &after, const QString &path = {})
{
    if (before.isArray() && after.isArray())
        return differences(byIndex(before.toArray()), byIndex(after.toArray()), path);
    if (!before.isObject() || !after.isObject())
        return before == after ? QStringList() : QStringList(path);
    QStringList keys = before.toObject().keys() + after.toObject().keys();
    keys.removeDuplicates();
    QStringList paths;
    for (const QString &key : qAsConst(keys))
        paths += differences(before[key], after[key], path + QLatin1Char('/') + key);
    return paths;
}

} // namespace

/// The module against devices behind real WebSockets.
class SiteTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void changesWhatWasTickedAndNothingElse_data()
    {
        QTest::addColumn<QString>("boxes"); // left ticked
        QTest::addColumn<QString>("changes"); // pattern of the paths that may change, and one of which does
        const auto row = [](const char *family, const char *boxes, const char *changes) {
            QTest::newRow(family) << QString::fromLatin1(boxes) << QString::fromLatin1(changes);
        };
        row("audio", "encodingFormat alarmOutVolume", "^/audio(In|Out)/(encType|aoGain)$");
        row("video", "SDStream bitRate", "^/video/streams/1/(rcMode|quality|bitRate)$");
        row("image", "imageFlip lightMode", "^/image(Adjust/flip|DayNight/lightmode)$");
        row("osd", "name", "^/osd/channelName$");
        row("network", "compatibleEnable lockIpEnable", "^/(onvifDiscovery/discoveryflag|inet/eth/bIPLock)$");
        row("platform", "serviceAddress", "^/qbcloud/qbcloud_(addr|type)$");
        row("platform_9100", "serviceAddress", "^/alarmService/bManualcfg(online|bussiness)$");
    }

    void changesWhatWasTickedAndNothingElse()
    {
        const FamilyRow &family = familyRow(QString::fromLatin1(QTest::currentDataTag()));
        QFETCH(QString, boxes);
        QFETCH(QString, changes);
        device_fleet::FleetOptions options;
        options.devices = 40;
        EmbeddedFleet fleet(options);
        QCOMPARE(fleet.start(), QString());
        const SiteClient client(fleet.inventory());
        QTRY_VERIFY(client.table()->rowCount() >= 30);
        QSet<QString> ticked;
        for (int row = 3; row < 28; ++row) {
            client.table()->item(row, 0)->setCheckState(Qt::Checked);
            ticked.insert(client.table()->item(row, 0)->data(Qt::UserRole + 1).toString());
        }
        const QStringList wanted = boxes.split(QLatin1Char(' '));
        const auto all = client.form.findChild<QWidget *>(family.pageName)->findChildren<QCheckBox *>();
        for (QCheckBox *box : all)
            if (box->isChecked() && !box->objectName().startsWith(QLatin1String("all"))
                && !wanted.contains(box->objectName()))
                box->click();

        const QJsonObject before = fleetDump(fleet);
        QCOMPARE(client.configure(family),
                 QStringLiteral("A total of 25 devices have been configured, success:25, failure:0"));
        const QJsonObject after = fleetDump(fleet);
        const QRegularExpression expected(changes);
        int changed = 0;
        for (auto it = before.begin(); it != before.end(); ++it) {
            const QStringList paths = differences(it.value(), after.value(it.key()));
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
        device.start(QStringLiteral("/usr/bin/python3"),
                     {QStringLiteral(PYTHON_DEVICE), QStringLiteral("--serial"), QStringLiteral("PY-1"),
                      QStringLiteral("--password"), QStringLiteral("Schlüssel 1")});
        QTRY_VERIFY(device.canReadLine());
        const QByteArray port = device.readLine().trimmed().split(' ').constLast();

        vms_sdk::DevInfo dev;
        dev.id = QStringLiteral("python");
        dev.serialNumber = QStringLiteral("PY-1");
        dev.ip = QStringLiteral("127.0.0.1");
        dev.port = port.toUShort();
        dev.userName = QStringLiteral("admin");
        dev.password = QStringLiteral("Schlüssel 1");
        dev.accessCode = 1;
        dev.kindCode = 1;
        const SiteClient client({dev});
        QTRY_COMPARE(client.table()->rowCount(), 1);
        client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
        auto *page = client.form.findChild<QWidget *>(QStringLiteral("audioParametersPage"));
        page->findChild<QCheckBox *>(QStringLiteral("alarmOutVolume"))->click();
        QCOMPARE(client.configure(familyRow(QStringLiteral("audio"))),
                 QStringLiteral("A total of 1 devices have been configured, success:1, failure:0"));
        device.kill();
        device.waitForFinished();
        QTRY_COMPARE(client.table()->rowCount(), 0);
    }
};

ORDA_TEST_MAIN(SiteTest)
#include "site_test.moc"
