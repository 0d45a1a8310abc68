#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/HttpAnswerReader.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QBuffer>

using namespace vms_sdk;

// What a camera may say: the bytes as an HTTP answer, as a challenge and as a SOAP message. What was read as XML is
// written and read again.

namespace {

void checkTree(const XmlElement &tree)
{
    const QByteArray text = writeXml(tree);
    const XmlRead again = readXml(text);
    if (!again.root || writeXml(*again.root) != text)
        qFatal("what is written is not what was read: %s", text.constData());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    QBuffer device;
    device.setData(input);
    device.open(QIODevice::ReadOnly);
    constexpr qint64 maxBytes = 1000;
    HttpAnswerReader http(maxBytes);
    if (http.read(device) == HttpAnswerReader::State::Incomplete)
        http.end();
    if (http.answer().body.size() > maxBytes || holdsControls(http.answer().error))
        qFatal("an answer that cannot be");
    if (auto auth = DigestAuth::fromChallenges({input})) {
        const QByteArray header = auth->authorization(QStringLiteral("a\"\r\n"), QStringLiteral("p"), "/");
        for (const char c : header)
            if (quint8(c) < ' ')
                qFatal("a header that is not one line");
    }
    if (const XmlRead xml = readXml(input); xml.root)
        checkTree(*xml.root);
    const SoapAnswer answer = readSoapAnswer(input);
    if (answer.error.isEmpty() && !answer.fault)
        checkTree(answer.body);
    if (holdsInvisible(answer.error) || (answer.fault && holdsInvisible(answer.fault->text())))
        qFatal("an error that is no printable line");
    return 0;
}
