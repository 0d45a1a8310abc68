#include "fleet/onvif/OnvifSignOn.h"

#include <vms_client_sdk/SignOn.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QCryptographicHash>

#include <cstdlib>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

constexpr char realm[] = "camera";
constexpr int maxNonces = 64; // more than requests of some clients that are under way
constexpr qint64 clockToleranceSeconds = 60; // of Created

/// The parameters of an Authorization header by their names in small letters.
QHash<QByteArray, QByteArray> parameters(const QByteArray &authorization)
{
    QHash<QByteArray, QByteArray> found;
    int i = authorization.indexOf(' ') + 1;
    while (i < authorization.size()) {
        const int equals = authorization.indexOf('=', i);
        if (equals < 0)
            break;
        const QByteArray name = authorization.mid(i, equals - i).trimmed().toLower();
        QByteArray value;
        i = equals + 1;
        const bool isQuoted = i < authorization.size() && authorization.at(i) == '"';
        if (isQuoted) {
            for (++i; i < authorization.size() && authorization.at(i) != '"'; ++i) {
                if (authorization.at(i) == '\\' && i + 1 < authorization.size())
                    ++i;
                value += authorization.at(i);
            }
        }
        const int comma = authorization.indexOf(',', i);
        const int end = comma < 0 ? authorization.size() : comma;
        if (!isQuoted)
            value = authorization.mid(i, end - i).trimmed();
        found.insert(name, value);
        i = end + 1;
    }
    return found;
}

bool isSaidBy(const QHash<QByteArray, QByteArray> &said, const QString &userName)
{
    if (!said.contains("username*"))
        return said.value("username") == userName.toUtf8();
    QByteArray encoded = said.value("username*");
    encoded.remove(0, encoded.lastIndexOf('\'') + 1); // UTF-8''…
    return QByteArray::fromPercentEncoding(encoded) == userName.toUtf8();
}

} // namespace

OnvifSignOn::OnvifSignOn(QString userName, QString password, const CameraTraits &traits)
    : m_userName(std::move(userName))
    , m_password(std::move(password))
    , m_traits(traits)
{
}

SignOn OnvifSignOn::check(const ShownAccount &shown, const QDateTime &now)
{
    if (m_traits.takesDigest && shown.authorization.left(7).toLower() == "digest ")
        return checkDigest(shown.authorization, shown.target);
    const XmlElement *security = shown.soapHeader ? shown.soapHeader->child(wsse, "Security") : nullptr;
    const XmlElement *token = security ? security->child(wsse, "UsernameToken") : nullptr;
    return m_traits.takesUsernameToken && token ? checkToken(*token, now) : SignOn::Missing;
}

SignOn OnvifSignOn::checkDigest(const QByteArray &authorization, const QByteArray &target)
{
    const QHash<QByteArray, QByteArray> said = parameters(authorization);
    const bool isSha256 = said.value("algorithm").toUpper() == "SHA-256";
    if (isSha256 && !m_traits.takesSha256)
        return SignOn::Refused;
    const auto hash = [isSha256](const QByteArray &text) {
        return QCryptographicHash::hash(text, isSha256 ? QCryptographicHash::Sha256 : QCryptographicHash::Md5).toHex();
    };
    const QByteArray nonce = said.value("nonce");
    const QByteArray account = hash(
        said.value("realm") == realm ? m_userName.toUtf8() + ':' + realm + ':' + m_password.toUtf8() : QByteArray());
    const QByteArray request = hash("POST:" + target);
    const QByteArray qop = said.value("qop");
    const QByteArray expected = qop.isEmpty() ? hash(account + ':' + nonce + ':' + request)
                                              : hash(account + ':' + nonce + ':' + said.value("nc") + ':'
                                                     + said.value("cnonce") + ':' + qop + ':' + request);
    if (!isSaidBy(said, m_userName) || said.value("uri") != target || said.value("response") != expected)
        return SignOn::Refused;
    if (!m_nonces.contains(nonce))
        return SignOn::Stale;
    if (m_traits.isNonceTakenOnce)
        m_nonces.removeOne(nonce);
    return SignOn::Good;
}

SignOn OnvifSignOn::checkToken(const XmlElement &token, const QDateTime &now)
{
    const QString nonce = token.textOf(wsse, "Nonce");
    const QString created = token.textOf(wsu, "Created");
    const XmlElement *password = token.child(wsse, "Password");
    const QByteArray digest =
        QCryptographicHash::hash(QByteArray::fromBase64(nonce.toLatin1()) + created.toLatin1() + m_password.toUtf8(),
                                 QCryptographicHash::Sha1)
            .toBase64();
    const QDateTime moment = QDateTime::fromString(created, Qt::ISODateWithMs);
    const bool isInTime = moment.isValid() && std::abs(moment.secsTo(now)) <= clockToleranceSeconds;
    if (token.textOf(wsse, "Username") != m_userName || !password || password->text().toLatin1() != digest
        || !password->attribute("Type").endsWith(QLatin1String("#PasswordDigest")) || nonce.isEmpty() || !isInTime
        || m_usedNonces.contains(nonce))
        return SignOn::Refused;
    for (auto it = m_usedNonces.begin(); it != m_usedNonces.end();) // beyond that, Created gives a replay away
        it = it->secsTo(now) > 2 * clockToleranceSeconds ? m_usedNonces.erase(it) : std::next(it);
    m_usedNonces.insert(nonce, now);
    return SignOn::Good;
}

QByteArray OnvifSignOn::challenges(bool isStale)
{
    if (!m_traits.takesDigest)
        return {};
    m_nonces.append(vms_sdk::makeNonce());
    if (m_nonces.size() > maxNonces)
        m_nonces.removeFirst();
    const QByteArray begin = QByteArray("WWW-Authenticate: Digest realm=\"") + realm + R"(", qop="auth", nonce=")"
                           + m_nonces.constLast() + '"';
    const QByteArray end = isStale && m_traits.saysStale ? ", stale=true\r\n" : "\r\n";
    const QByteArray md5 = begin + ", algorithm=MD5" + end;
    return m_traits.takesSha256 ? begin + ", algorithm=SHA-256, charset=UTF-8" + end + md5 : md5;
}

} // namespace device_fleet
