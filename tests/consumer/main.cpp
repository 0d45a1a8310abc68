// The least that a client writes to have the module: a way to its devices, their records, and a place for the form.
// Here the devices are answered for in this process, and a hand of the program's own presses the buttons.
#include <orda_base/BaseForm.h>
#include <orda_base/BaseTools.h>
#include <orda_base/Theme.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/DeviceTransport.h>

#include <QApplication>
#include <QCheckBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMainWindow>
#include <QSlider>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>
#include <QTranslator>

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

// Sets the audio input volume of all devices in the list, and nothing else.
void configureVolume(const QWidget *form, int volume)
{
    form->findChild<QAbstractButton *>("audio_param")->click(); // a navigation key
    form->findChild<QCheckBox *>("selAll")->click();
    const auto *page = form->findChild<QWidget *>("audioParametersPage");
    page->findChild<QCheckBox *>("allParams")->click(); // all parameters start ticked, so now none is
    page->findChild<QCheckBox *>("audioInVolume")->click();
    page->findChild<QSlider *>("audioInVolumeSlider")->setValue(volume);
    page->findChild<QAbstractButton *>("okBt")->click(); // comes back when the run is over
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    orda_base::Theme::apply(app); // a client with a look of its own leaves it out
    for (const char *part : {"batchCfg", "clientlibs"}) {
        auto *texts = new QTranslator(&app);
        if (texts->load(QLocale(), QString::fromLatin1(part), "_", ":/translations"))
            QCoreApplication::installTranslator(texts);
    }

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

    QMainWindow window;
    auto *form = orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm();
    window.setCentralWidget(form); // the form had no parent until now
    window.resize(1500, 850);
    window.show();
    const auto &tools = orda_base::BaseTools::instance();
    QObject::connect(&tools, &orda_base::BaseTools::signalDevRemoteConfigOpened, &window,
                     [&window](const QString &devId) {
                         window.statusBar()->showMessage("here opens the client's own screen for the device " + devId);
                     });

    for (const vms_sdk::DevInfo &camera : qAsConst(cameras))
        emit site->devStatusChanged(camera.id, vms_sdk::DevOnline); // the store hears of it, and the list of the store

    QString summary;
    const auto &assistant = orda_worker::AssistantSignals::instance();
    QObject::connect(&assistant, &orda_worker::AssistantSignals::signalEventConfirmRaised, &app,
                     [&summary](const orda_worker::EventConfirmInfo &info) { summary = info.text; });
    const auto *table = form->findChild<QTableWidget *>("devsTableWt");
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, form,
                     [form, count = cameras.size()](const QModelIndex &, int, int last) {
                         if (last + 1 == count) // the row is filled after it has been inserted
                             QTimer::singleShot(0, form, [form] {
                                 configureVolume(form, 80);
                                 QCoreApplication::quit();
                             });
                     });
    QTimer::singleShot(20'000, &app, [] { QCoreApplication::exit(1); });
    const bool inTime = QApplication::exec() == 0;

    const bool isDone = inTime && !summary.isEmpty() && site->volumes.keys(80).size() == 3;
    qInfo("%s", isDone ? qPrintable(summary) : "the devices were not configured");
    return isDone ? 0 : 1;
}
