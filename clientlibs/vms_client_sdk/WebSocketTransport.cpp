#include <vms_client_sdk/WebSocketTransport.h>

#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/websocket/NetworkWorker.h>

#include <QCoreApplication>

namespace vms_sdk {

WebSocketTransport::WebSocketTransport(QObject *parent, const WebSocketOptions &options)
    : DeviceTransport(parent)
    , m_worker(new NetworkWorker(options))
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    // Direct: whoever listens to a transport queues its signals anyway, and once is enough.
    connect(m_worker, &NetworkWorker::answered, this, &DeviceTransport::answered, Qt::DirectConnection);
    connect(m_worker, &NetworkWorker::devStatusChanged, this, &DeviceTransport::devStatusChanged, Qt::DirectConnection);
    connect(m_worker, &NetworkWorker::linkTroubled, this, &DeviceTransport::linkTroubled, Qt::DirectConnection);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &WebSocketTransport::shutdown);
    m_thread.setObjectName(QStringLiteral("vms_sdk network"));
    m_thread.start();
}

WebSocketTransport::~WebSocketTransport()
{
    shutdown();
}

void WebSocketTransport::send(const QString &requestId, const QString &devId, const QString &text)
{
    if (requestId.isEmpty() || requestId.contains(QLatin1Char('\n'))) {
        qCWarning(sdkLog) << "request to" << devId << "dropped: its id is empty or holds a line break";
        return;
    }
    if (m_worker)
        m_worker->send(requestId, devId, text);
}

void WebSocketTransport::passedOn(const QString &requestId, const QString &text)
{
    if (m_worker)
        m_worker->passedOn(requestId, text.size());
}

void WebSocketTransport::setDevices(const QList<DevInfo> &devices)
{
    if (m_worker)
        QMetaObject::invokeMethod(
            m_worker, [=, worker = m_worker] { worker->setDevices(devices); }, Qt::QueuedConnection);
}

void WebSocketTransport::connectAgain()
{
    if (m_worker)
        QMetaObject::invokeMethod(m_worker, &NetworkWorker::connectAgain, Qt::QueuedConnection);
}

void WebSocketTransport::connectDevicesAgain(const QStringList &devIds)
{
    if (m_worker)
        QMetaObject::invokeMethod(
            m_worker, [=, worker = m_worker] { worker->connectDevicesAgain(devIds); }, Qt::QueuedConnection);
}

void WebSocketTransport::shutdown()
{
    if (!m_worker)
        return;
    m_worker = nullptr;
    m_thread.quit();
    m_thread.wait();
}

} // namespace vms_sdk
