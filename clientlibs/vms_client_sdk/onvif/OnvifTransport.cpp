#include <vms_client_sdk/onvif/OnvifTransport.h>

#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/onvif/OnvifWorker.h>

#include <QCoreApplication>
#include <QThread>

#include <optional>

namespace vms_sdk {

class OnvifTransport::Private
{
public:
    QThread thread;
    OnvifOptions options;
    std::optional<std::chrono::milliseconds> requestTimeout;
    OnvifWorker *worker = nullptr; ///< lives in the thread and is deleted there; null before and after it
    bool isShutDown = false;
};

OnvifTransport::OnvifTransport(QObject *parent, const OnvifOptions &options)
    : DeviceTransport(parent)
    , d(std::make_unique<Private>())
{
    d->options = options;
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &OnvifTransport::shutdown);
}

OnvifTransport::~OnvifTransport()
{
    shutdown();
}

void OnvifTransport::setDevices(const QList<DevInfo> &devices)
{
    if (d->isShutDown || (!d->worker && devices.isEmpty()))
        return;
    if (!d->worker) {
        d->worker = new OnvifWorker(d->options);
        if (d->requestTimeout)
            d->worker->setRequestTimeout(*d->requestTimeout);
        d->worker->moveToThread(&d->thread);
        connect(&d->thread, &QThread::finished, d->worker, &QObject::deleteLater);
        // Direct: whoever listens to a transport queues its signals anyway, and once is enough.
        connect(d->worker, &OnvifWorker::answered, this, &DeviceTransport::answered, Qt::DirectConnection);
        connect(d->worker, &OnvifWorker::devStatusChanged, this, &DeviceTransport::devStatusChanged,
                Qt::DirectConnection);
        connect(d->worker, &OnvifWorker::linkTroubled, this, &DeviceTransport::linkTroubled, Qt::DirectConnection);
        connect(d->worker, &OnvifWorker::identified, this, &DeviceTransport::identified, Qt::DirectConnection);
        d->thread.setObjectName(QStringLiteral("vms_sdk onvif"));
        d->thread.start();
    }
    QMetaObject::invokeMethod(
        d->worker, [=, worker = d->worker] { worker->setDevices(devices); }, Qt::QueuedConnection);
}

void OnvifTransport::send(const QString &requestId, const QString &devId, const QString &text)
{
    if (d->worker)
        d->worker->send(requestId, devId, text);
    else
        qCDebug(sdkLog) << "request" << requestId << "dropped: device" << devId << "is unknown";
}

void OnvifTransport::passedOn(const QString &requestId, const QString &text)
{
    if (d->worker)
        d->worker->passedOn(requestId, text.size());
}

void OnvifTransport::setRequestTimeout(std::chrono::milliseconds timeout)
{
    d->requestTimeout = timeout;
    if (d->worker)
        d->worker->setRequestTimeout(timeout);
}

void OnvifTransport::timedOut(const QString &requestId)
{
    if (d->worker)
        d->worker->timedOut(requestId);
}

void OnvifTransport::connectAgain()
{
    if (d->worker)
        QMetaObject::invokeMethod(d->worker, &OnvifWorker::connectAgain, Qt::QueuedConnection);
}

void OnvifTransport::connectDevicesAgain(const QStringList &devIds)
{
    if (d->worker)
        QMetaObject::invokeMethod(
            d->worker, [=, worker = d->worker] { worker->connectDevicesAgain(devIds); }, Qt::QueuedConnection);
}

void OnvifTransport::shutdown()
{
    d->isShutDown = true;
    if (!d->worker)
        return;
    d->worker = nullptr;
    d->thread.quit();
    d->thread.wait();
}

} // namespace vms_sdk
