#include "support/OrdaTest.h"

#include <EmbeddedFleet.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <shell/BatchCfgForm.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/WebSocketTransport.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTableWidget>

using device_fleet::EmbeddedFleet;
using device_fleet::Fault;
using orda_data::DevsMgrData;
using orda_worker::AssistantSignals;

namespace {

// The client's side of a site: store, SDK and form, over real sockets.
class Client
{
public:
    explicit Client(const QList<vms_sdk::DevInfo> &devices)
    {
        auto transport = std::make_unique<vms_sdk::WebSocketTransport>();
        auto *raw = transport.get();
        vms_sdk::ClientSdk::instance().setTransport(std::move(transport));
        vms_sdk::ClientSdk::instance().setRequestTimeout(std::chrono::seconds(2));
        DevsMgrData::instance().updateDevs(devices);
        raw->setDevices(devices);
        form.show();
    }

    ~Client()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows)
            if (auto *dialog = qobject_cast<QDialog *>(window))
                dialog->reject();
        vms_sdk::ClientSdk::instance().setTransport(nullptr);
        QStringList ids;
        const QList<vms_sdk::DevInfo> devices = DevsMgrData::instance().getAllDevs(false);
        for (const vms_sdk::DevInfo &dev : devices)
            ids.append(dev.id);
        DevsMgrData::instance().deleteDevs(ids);
    }
    Q_DISABLE_COPY_MOVE(Client)

    QTableWidget *table() const { return form.findChild<QTableWidget *>(QStringLiteral("devsTableWt")); }

    /// Runs the audio page over the rows that are ticked and returns the summary's text.
    QString configureAudio() const
    {
        const QSignalSpy summaries(&AssistantSignals::instance(), &AssistantSignals::signalEventConfirmRaised);
        form.findChild<QAbstractButton *>(QStringLiteral("audio_param"))->click();
        const auto *page = form.findChild<QWidget *>(QStringLiteral("audioParametersPage"));
        page->findChild<QAbstractButton *>(QStringLiteral("okBt"))->click();
        return summaries.value(0).value(0).value<orda_worker::EventConfirmInfo>().text;
    }

    orda_batchCfg::BatchCfgForm form;
};

QJsonObject fleetDump(const EmbeddedFleet &fleet)
{
    return fleet.dump().value(QLatin1String("devices")).toObject();
}

// Paths of the members in which two objects differ.
QStringList differences(const QJsonObject &before, const QJsonObject &after, const QString &prefix = {})
{
    QStringList paths;
    QStringList keys = before.keys() + after.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        const QJsonValue a = before.value(key);
        const QJsonValue b = after.value(key);
        if (a.isObject() && b.isObject())
            paths += differences(a.toObject(), b.toObject(), prefix + key + QLatin1Char('/'));
        else if (a != b)
            paths.append(prefix + key);
    }
    paths.sort();
    return paths;
}

} // namespace

/// The module against devices behind real WebSockets.
class SiteTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void changesWhatWasTickedAndNothingElse();
    void deviceThatDropsOutEndsByItsTimeOut();
    void deviceInAnotherLanguageIsConfigured();
};

void SiteTest::changesWhatWasTickedAndNothingElse()
{
    device_fleet::FleetOptions options;
    options.devices = 40;
    EmbeddedFleet fleet(options);
    QCOMPARE(fleet.start(), QString());
    Client client(fleet.inventory());
    QTRY_VERIFY(client.table()->rowCount() >= 30);

    QStringList ticked;
    for (int row = 3; row < 6; ++row) {
        client.table()->item(row, 0)->setCheckState(Qt::Checked);
        ticked.append(client.table()->item(row, 0)->data(Qt::UserRole + 1).toString());
    }
    // The output's volume, on a value that no device has of its own.
    client.form.findChild<QAbstractButton *>(QStringLiteral("audio_param"))->click();
    auto *page = client.form.findChild<QWidget *>(QStringLiteral("audioParametersPage"));
    page->findChild<QCheckBox *>(QStringLiteral("allParams"))->click();
    page->findChild<QCheckBox *>(QStringLiteral("alarmOutVolume"))->click();
    page->findChild<QAbstractSlider *>(QStringLiteral("alarmOutVolumeSlider"))->setValue(99);

    const QJsonObject before = fleetDump(fleet);
    QCOMPARE(client.configureAudio(),
             QStringLiteral("A total of 3 devices have been configured, success:3, failure:0"));
    const QJsonObject after = fleetDump(fleet);
    QStringList changed;
    for (auto it = before.begin(); it != before.end(); ++it) {
        const QStringList paths = differences(it.value().toObject(), after.value(it.key()).toObject());
        if (!paths.isEmpty()) {
            changed.append(it.key());
            QCOMPARE(paths.size(), 1);
            QVERIFY2(paths.constFirst().endsWith(QLatin1String("/aoGain")), qPrintable(paths.constFirst()));
        }
    }
    ticked.sort();
    QCOMPARE(changed, ticked);
}

void SiteTest::deviceThatDropsOutEndsByItsTimeOut()
{
    device_fleet::FleetOptions options;
    options.devices = 10;
    EmbeddedFleet fleet(options);
    QCOMPARE(fleet.start(), QString());
    Client client(fleet.inventory());
    QTRY_VERIFY(client.table()->rowCount() >= 8);
    const auto id = [&client](int row) { return client.table()->item(row, 0)->data(Qt::UserRole + 1).toString(); };
    const QString all = QStringLiteral("*");
    fleet.setFault(id(0), all, {Fault::DropAndReturn});
    fleet.setFault(id(1), all, {Fault::Garbage});
    fleet.setFault(id(2), all, {Fault::AnswerTwice});
    client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
    const int total = client.form.checkedDevIds().size();

    QCOMPARE(
        client.configureAudio(),
        QStringLiteral("A total of %1 devices have been configured, success:%2, failure:2").arg(total).arg(total - 2));
    QTRY_COMPARE(client.table()->rowCount(), total); // it is back, at the bottom and without its mark
    QCOMPARE(client.form.checkedDevIds().size(), total - 1);
}

void SiteTest::deviceInAnotherLanguageIsConfigured()
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
    Client client({dev});
    QTRY_COMPARE(client.table()->rowCount(), 1);
    client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
    auto *page = client.form.findChild<QWidget *>(QStringLiteral("audioParametersPage"));
    page->findChild<QCheckBox *>(QStringLiteral("alarmOutVolume"))->click();
    QCOMPARE(client.configureAudio(),
             QStringLiteral("A total of 1 devices have been configured, success:1, failure:0"));
    device.kill();
    device.waitForFinished();
    QTRY_COMPARE(client.table()->rowCount(), 0);
}

ORDA_TEST_MAIN(SiteTest)
#include "site_test.moc"
