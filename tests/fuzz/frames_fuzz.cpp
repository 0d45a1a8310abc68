#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>

#include <QList>

using namespace vms_sdk;

// What a peer that does not know the password may say: sign-on messages with null bytes between them, read as frames
// too.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray input = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    DevInfo device;
    device.serialNumber = QStringLiteral("SN-1");
    device.userName = device.password = QStringLiteral("p");
    ClientSignOn signOn(device);
    const QList<QByteArray> messages = input.split('\0');
    for (const QByteArray &message : messages) {
        const QString text = QString::fromUtf8(message);
        const ClientSignOn::Outcome outcome = signOn.take(text);
        if (outcome.step == ClientSignOn::Step::Welcome)
            qFatal("welcome without the password");
        if (const auto frame = parseFrame(text); frame && toFrameText(*frame) != text)
            qFatal("a frame changes on its way");
        if (outcome.step != ClientSignOn::Step::Answer)
            break;
    }
    return 0;
}
