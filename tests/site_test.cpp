#include "support/OrdaTest.h"
#include "support/SiteClient.h"

namespace {

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
    QStringList paths, keys = was.keys() + is.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys))
        paths += differences(was.value(key), is.value(key), path + '/' + key);
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
        // What is left ticked; a pattern of the paths that may change, and one of which does.
        columns<QString, QString>({"boxes", "changes"});
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

        vms_sdk::DevInfo dev;
        dev.id = "python";
        dev.serialNumber = "PY-1";
        dev.ip = "127.0.0.1";
        dev.port = port.toUShort();
        dev.userName = "admin";
        dev.password = "Schlüssel 1";
        dev.accessCode = 1;
        dev.kindCode = 1;
        const SiteClient client({dev});
        QTRY_COMPARE(client.table()->rowCount(), 1);
        client.tickAll();
        auto *page = client.form.findChild<QWidget *>("audioParametersPage");
        page->findChild<QCheckBox *>("alarmOutVolume")->click();
        QCOMPARE(client.configure(familyRow("audio")), summaryOf(1, 0));
        device.kill();
        device.waitForFinished();
        QTRY_COMPARE(client.table()->rowCount(), 0);
    }
};

ORDA_TEST_MAIN(SiteTest)
#include "site_test.moc"
