// The least that a client writes to have the module: a way to its devices, their records, and a place for the form.
// Here the devices are answered for in this process, and a hand of the program's own presses the buttons.
#include <orda_base/BaseForm.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/DeviceTransport.h>

#include <QAbstractButton>
#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTableWidget>
#include <QTimer>

namespace {

class SiteTransport : public vms_sdk::DeviceTransport
{
public:
    void send(const QString &requestId, const QString &devId, const QString &text) override
    {
        const QJsonObject request = QJsonDocument::fromJson(text.toUtf8()).object();
        if (request.value("method") == QLatin1String("ai_set_param"))
            volumes[devId] = request.value("param").toObject().value("audioAttr").toObject().value("aiGain");
        const QJsonObject answer{{"method", request.value("method")},
                                 {"error", QJsonObject{{"errorcode", 0}}},
                                 {"result", QJsonObject{{"aiGain", 1}}}};
        emit answered(requestId, QJsonDocument(answer).toJson());
    }

    QHash<QString, QJsonValue> volumes; // as the devices were told to set them; each reports 1
};

void pressConfigure(const QWidget *form)
{
    form->findChild<QAbstractButton *>("audio_param")->click(); // a navigation key
    form->findChild<QAbstractButton *>("selAll")->click();
    const auto *page = form->findChild<QWidget *>("audioParametersPage");
    page->findChild<QAbstractButton *>("okBt")->click(); // comes back when the run is over
    QCoreApplication::quit();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    auto *site = new SiteTransport; // the SDK's from the next line on
    vms_sdk::ClientSdk::instance().setTransport(std::unique_ptr<vms_sdk::DeviceTransport>(site));

    QList<vms_sdk::DevInfo> cameras;
    for (const char *id : {"gate", "yard", "hall"}) {
        vms_sdk::DevInfo camera;
        camera.id = camera.name = camera.serialNumber = QString::fromLatin1(id);
        camera.ip = QStringLiteral("192.0.2.%1").arg(cameras.size() + 1);
        camera.accessCode = camera.kindCode = 1; // a camera that this client reaches itself
        cameras.append(camera);
    }
    orda_data::DevsMgrData::instance().updateDevs(cameras);

    const std::unique_ptr<orda_base::BaseForm> form(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
    form->show();
    for (const vms_sdk::DevInfo &camera : qAsConst(cameras))
        emit site->devStatusChanged(camera.id, vms_sdk::DevOnline); // the store hears of it, and the list of the store

    QString summary;
    const auto &assistant = orda_worker::AssistantSignals::instance();
    QObject::connect(&assistant, &orda_worker::AssistantSignals::signalEventConfirmRaised, &app,
                     [&summary](const orda_worker::EventConfirmInfo &info) { summary = info.text; });
    const auto *table = form->findChild<QTableWidget *>("devsTableWt");
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, form.get(),
                     [form = form.get(), count = cameras.size()](const QModelIndex &, int, int last) {
                         if (last + 1 == count) // the row is filled after it has been inserted
                             QTimer::singleShot(0, form, [form] { pressConfigure(form); });
                     });
    QTimer::singleShot(20'000, &app, [] { QCoreApplication::exit(1); });
    const bool inTime = QApplication::exec() == 0;

    const bool isDone = inTime && summary.contains(QLatin1String("success:3, failure:0")) && site->volumes.size() == 3
                     && site->volumes.key(1).isEmpty();
    qInfo("%s", isDone ? qPrintable(summary) : "the devices were not configured");
    return isDone ? 0 : 1;
}
