#include "BareClient.h"

#include <vms_client_sdk/DeviceProtocol.h>

#include <QCoreApplication>
#include <QNetworkRequest>
#include <QTimer>
#include <QWebSocket>

// The least that a client on QtWebSockets can be.

namespace {

class QtDevice : public QObject, public BareDevice
{
public:
    QtDevice(const vms_sdk::DevInfo &device, BareClient &client)
        : BareDevice(device, client)
        , m_url(vms_sdk::deviceUrl(device))
    {
        QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket,
                         [this](const QString &message) { take(message); });
        QObject::connect(&m_socket, &QWebSocket::disconnected, &m_socket, [] { qFatal("a device has gone"); });
    }

    void dial() override
    {
        QNetworkRequest request(m_url);
        request.setRawHeader("Sec-WebSocket-Protocol", vms_sdk::deviceSubProtocol);
        m_socket.open(request);
    }

private:
    void send(const QString &message) override { m_socket.sendTextMessage(message); }

    QUrl m_url;
    QWebSocket m_socket;
};

} // namespace

int main(int argc, char *argv[])
{
    BareClient client(argc, argv);
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    const QCoreApplication app(argc, argv);
    client.start([](const vms_sdk::DevInfo &device, BareClient &of) { return std::make_unique<QtDevice>(device, of); },
                 [](std::chrono::milliseconds delay, const std::function<void()> &then) {
                     QTimer::singleShot(delay, QCoreApplication::instance(), then);
                 });
    return QCoreApplication::exec();
}
