#include "BareClient.h"

#include <vms_client_sdk/DeviceProtocol.h>

#include <QByteArray>

#include <boost/asio/basic_waitable_timer.hpp>
#include <boost/asio/buffer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/websocket/stream.hpp>

// A floor without Qt in its network: Boost.Beast's WebSockets over Boost.Asio, which waits with epoll, on one thread.
// What it sends and what it makes of an answer, QString, QJsonDocument and the proof of the sign-on included, is
// bare_client's own code; like it, each message is masked, looked at for valid UTF-8, and sent in one frame without
// compression.

namespace {

namespace asio = boost::asio;
namespace websocket = boost::beast::websocket;

// The context's own executor instead of one that can hold any: less to call through, and less to compile.
using Executor = asio::io_context::executor_type;
using Socket = asio::basic_stream_socket<asio::ip::tcp, Executor>;
using Timer =
    asio::basic_waitable_timer<std::chrono::steady_clock, asio::wait_traits<std::chrono::steady_clock>, Executor>;
using Error = boost::system::error_code;

void mustBeFine(const Error &error)
{
    if (error)
        qFatal("a device has gone: %s", error.message().c_str());
}

class BeastDevice : public BareDevice
{
public:
    BeastDevice(const vms_sdk::DevInfo &device, BareClient &client, asio::io_context &context)
        : BareDevice(device, client)
        , m_url(vms_sdk::deviceUrl(device))
        , m_stream(context)
    {
    }

    void dial() override
    {
        // The fleet's devices are given by address: there is no name to look up.
        const asio::ip::tcp::endpoint address(asio::ip::make_address(m_url.host().toStdString()),
                                              static_cast<unsigned short>(m_url.port()));
        m_stream.next_layer().async_connect(address, [this](const Error &error) {
            mustBeFine(error);
            shakeHands();
        });
    }

private:
    void shakeHands()
    {
        m_stream.set_option(websocket::stream_base::decorator([](websocket::request_type &request) {
            request.set(boost::beast::http::field::sec_websocket_protocol, vms_sdk::deviceSubProtocol);
        }));
        m_stream.text(true);
        m_stream.auto_fragment(false);
        m_stream.async_handshake(m_url.authority().toStdString(), m_url.path().toStdString(),
                                 [this](const Error &error) {
                                     mustBeFine(error);
                                     receive();
                                 });
    }

    void receive()
    {
        m_stream.async_read(m_received, [this](const Error &error, std::size_t) {
            mustBeFine(error);
            const asio::const_buffer bytes = m_received.data();
            const QString message = QString::fromUtf8(static_cast<const char *>(bytes.data()), int(bytes.size()));
            m_received.clear();
            receive();
            take(message);
        });
    }

    /// Only after the answer to the last one: there is never a message on its way already.
    void send(const QString &message) override
    {
        m_sent = message.toUtf8();
        m_stream.async_write(asio::buffer(m_sent.constData(), std::size_t(m_sent.size())),
                             [](const Error &error, std::size_t) { mustBeFine(error); });
    }

    QUrl m_url;
    websocket::stream<Socket, false> m_stream; // false: without compression
    boost::beast::flat_buffer m_received;
    QByteArray m_sent;
};

} // namespace

int main(int argc, char *argv[])
try {
    BareClient client(argc, argv);
    asio::io_context context(1); // thread
    client.start([&context](const vms_sdk::DevInfo &device,
                            BareClient &of) { return std::make_unique<BeastDevice>(device, of, context); },
                 [&context](std::chrono::milliseconds delay, const std::function<void()> &then) {
                     const auto timer = std::make_shared<Timer>(context, delay);
                     timer->async_wait([timer, then](const Error &) { then(); });
                 });
    context.run();
} catch (const std::exception &error) {
    qFatal("%s", error.what());
}
