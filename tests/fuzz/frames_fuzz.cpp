#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/HttpHead.h>
#include <vms_client_sdk/SignOn.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>
#include <vms_client_sdk/websocket/WebSocketFrames.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

using namespace vms_sdk;

// What a peer may say: sign-on messages with null bytes between them, read as frames and looked at as answers too.
// "PROOF" in a message stands for the right proof, as it takes the password to find; nobody gets in without it.

namespace {

const QString password = QStringLiteral("the-password");

/// The proof that the device owes for the client's "auth".
QByteArray rightProof(const QByteArray &hello, const QString &authText)
{
    const QJsonValue deviceNonce = QJsonDocument::fromJson(hello).object().value(QLatin1String("hello"));
    const QJsonValue auth = QJsonDocument::fromJson(authText.toUtf8()).object().value(QLatin1String("auth"));
    if (!auth.isObject() || authText.contains(password))
        qFatal("no \"auth\", or one that gives the password away: %s", qPrintable(authText));
    return signOnProof(SignOnSide::Device, password,
                       deviceNonce.toObject().value(QLatin1String("nonce")).toString().toUtf8(),
                       auth.toObject().value(QLatin1String("nonce")).toString().toUtf8());
}

void checkFrame(const QString &text)
{
    if (const auto frame = parseFrame(text); frame && toFrameText(*frame) != text)
        qFatal("a frame changes on its way");
    const auto made = parseFrame(toFrameText({QStringLiteral("id"), text}));
    if (!made || made->requestId != QLatin1String("id") || made->text != text)
        qFatal("a text changes on its way");
}

/// The bytes as a peer's HTTP head, and what follows as its frames.
void checkBytes(const QByteArray &input)
{
    QByteArray bytes = input;
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    if (HttpHead().read(device) == HttpHead::State::TooLarge && bytes.size() < HttpHead::maxLineBytes)
        qFatal("a short head is too large");
    WebSocketFrames frames(device, true);
    WebSocketFrames::Chunk chunk;
    qint64 total = 0;
    while (frames.next(&chunk) == WebSocketFrames::Result::Arrived) {
        total += chunk.data.size();
        if (total > bytes.size() || (chunk.opcode >= WebSocketFrames::Close && chunk.frameBytes > 125))
            qFatal("a frame that cannot be");
    }
}

/// What passes the check can be taken apart and is no larger than the check says, a level deeper.
void checkLimits(const QByteArray &text)
{
    const AnswerCheck check = checkAnswer(text);
    if (check.fault)
        return;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QJsonValue content = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    const int around = QJsonDocument(QJsonObject{{QString(), 1}}).toJson().size() - 1;
    const int written = QJsonDocument(QJsonObject{{QString(), content}}).toJson().size() - around;
    if (document.isNull() || written > check.writtenBytes || check.writtenBytes > maxWrittenBytes)
        qFatal("%d bytes written, %lld counted", written, static_cast<long long>(check.writtenBytes));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray input = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    checkBytes(input);
    DevInfo device;
    device.serialNumber = QStringLiteral("SN-1");
    device.userName = QStringLiteral("admin");
    device.password = password;
    ClientSignOn signOn(device);
    QByteArray proof;
    bool goesOn = true;
    const QList<QByteArray> messages = input.split('\0');
    for (QByteArray message : messages) {
        checkFrame(QString::fromUtf8(message));
        checkLimits(message);
        if (!goesOn)
            continue;
        const bool knowsPassword = !proof.isEmpty() && message.contains("PROOF");
        if (knowsPassword)
            message.replace("PROOF", proof);
        const ClientSignOn::Outcome outcome = signOn.take(QString::fromUtf8(message));
        goesOn = outcome.step == ClientSignOn::Step::Answer;
        if (goesOn)
            proof = rightProof(message, outcome.text);
        if (outcome.step == ClientSignOn::Step::Welcome && !knowsPassword)
            qFatal("welcome without the password");
        if (signOn.state() && (outcome.step != ClientSignOn::Step::Welcome || !isOnlineStatus(*signOn.state())))
            qFatal("state %d", int(*signOn.state()));
    }
    return 0;
}
