#include <vms_client_sdk/SignOn.h>

#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <array>

namespace vms_sdk {

namespace {

constexpr int minNonceBytes = 16;

} // namespace

QByteArray makeNonce()
{
    std::array<quint32, minNonceBytes / sizeof(quint32)> words{};
    QRandomGenerator::system()->fillRange(words.data(), qsizetype(words.size()));
    return QByteArray(reinterpret_cast<const char *>(words.data()), minNonceBytes).toBase64();
}

bool isNonceLongEnough(const QByteArray &base64)
{
    const auto bytes = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    return bytes && bytes.decoded.size() >= minNonceBytes;
}

QByteArray signOnProof(SignOnSide side, const QString &password, const QByteArray &deviceNonce,
                       const QByteArray &clientNonce)
{
    const QByteArray speaker = side == SignOnSide::Client ? QByteArrayLiteral("client:") : QByteArrayLiteral("device:");
    return QMessageAuthenticationCode::hash(speaker + deviceNonce + ':' + clientNonce, password.toUtf8(),
                                            QCryptographicHash::Sha256)
        .toBase64();
}

bool isSameProof(const QByteArray &a, const QByteArray &b)
{
    if (a.size() != b.size())
        return false; // the length of a proof is no secret
    unsigned difference = 0;
    for (int i = 0; i < a.size(); ++i)
        difference |= unsigned(uchar(a.at(i)) ^ uchar(b.at(i)));
    return difference == 0;
}

} // namespace vms_sdk
