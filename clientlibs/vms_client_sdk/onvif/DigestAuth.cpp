#include <vms_client_sdk/onvif/DigestAuth.h>

#include <QCryptographicHash>
#include <QHash>
#include <QList>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cstring>

namespace vms_sdk {

struct DigestAuth::Challenge
{
    QByteArray scheme; ///< lower case
    QHash<QByteArray, QByteArray> parameters; ///< lower case names; values as they are meant
    bool hasDoubles = false; ///< of one name: nobody can tell which value is meant
};

namespace {

// As long as a header line may be.
constexpr int maxChallengeBytes = 8 * 1024;

// What a guess of the client's own part must not hit.
constexpr std::size_t clientNonceWords = 4;

bool isTokenByte(char c)
{
    return c > ' ' && c < 0x7f && !std::strchr("\"(),/:;<=>?@[\\]{}", c);
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Takes a header's value apart. Malformed parts give parameters that nobody asks for.
class ChallengeParser
{
public:
    explicit ChallengeParser(const QByteArray &text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_at >= m_text.size(); }
    char next() const { return atEnd() ? '\0' : m_text.at(m_at); }
    void skip(char separator)
    {
        while (!atEnd() && (isBlank(next()) || next() == separator))
            ++m_at;
    }
    QByteArray token()
    {
        const int from = m_at;
        while (!atEnd() && isTokenByte(next()))
            ++m_at;
        if (m_at == from && !atEnd())
            ++m_at; // no token: goes on behind what is in the way
        return m_text.mid(from, m_at - from).toLower();
    }
    bool takesEquals()
    {
        skip(' ');
        if (next() != '=')
            return false;
        ++m_at;
        skip(' ');
        return true;
    }
    QByteArray value()
    {
        QByteArray result;
        const bool isQuoted = next() == '"';
        if (isQuoted)
            ++m_at;
        for (; !atEnd() && (isQuoted ? next() != '"' : next() != ',' && !isBlank(next())); ++m_at) {
            if (isQuoted && next() == '\\' && m_at + 1 < m_text.size())
                ++m_at;
            result += next();
        }
        const bool isOpen = isQuoted && atEnd();
        if (isQuoted)
            ++m_at;
        return isOpen ? QByteArray() : result;
    }

private:
    QByteArray m_text;
    int m_at = 0;
};

bool holdsControlBytes(const QByteArray &text)
{
    return std::any_of(text.begin(), text.end(), [](char c) { return quint8(c) < 0x20 || c == 0x7f; });
}

/// For a header: in quotes, and never with a line break.
QByteArray quoted(const QByteArray &text)
{
    QByteArray result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        if (quint8(c) >= 0x20 && c != 0x7f)
            result += c;
    }
    return result + '"';
}

bool hasWord(const QByteArray &list, const char *lowerCaseWord)
{
    const QList<QByteArray> words = list.toLower().split(',');
    return std::any_of(words.begin(), words.end(),
                       [=](const QByteArray &word) { return word.trimmed() == lowerCaseWord; });
}

QByteArray makeClientNonce()
{
    std::array<quint32, clientNonceWords> words{};
    QRandomGenerator::system()->fillRange(words.data(), int(words.size()));
    return QByteArray(reinterpret_cast<const char *>(words.data()), int(sizeof words)).toHex();
}

} // namespace

std::optional<DigestAuth> DigestAuth::fromChallenge(const Challenge &challenge)
{
    const QHash<QByteArray, QByteArray> &parameters = challenge.parameters;
    if (challenge.scheme != "digest" || challenge.hasDoubles || parameters.value("nonce").isEmpty()
        || !parameters.contains("realm"))
        return {};
    for (const char *name : {"realm", "nonce", "opaque"})
        if (holdsControlBytes(parameters.value(name)))
            return {};
    DigestAuth auth;
    auth.m_realm = parameters.value("realm");
    auth.m_nonce = parameters.value("nonce");
    auth.m_hasOpaque = parameters.contains("opaque");
    auth.m_opaque = parameters.value("opaque");
    auth.m_isStale = parameters.value("stale").toLower() == "true";
    auth.m_hasQop = parameters.contains("qop");
    if (auth.m_hasQop && !hasWord(parameters.value("qop"), "auth"))
        return {};
    QByteArray algorithm = parameters.value("algorithm").toLower();
    auth.m_isSession = algorithm.endsWith("-sess");
    if (auth.m_isSession)
        algorithm.chop(int(std::strlen("-sess")));
    auth.m_isSha256 = algorithm == "sha-256";
    if (!auth.m_isSha256 && algorithm != "md5" && parameters.contains("algorithm"))
        return {};
    if (parameters.contains("algorithm"))
        auth.m_algorithm = QByteArray(auth.m_isSha256 ? "SHA-256" : "MD5") + (auth.m_isSession ? "-sess" : "");
    return auth;
}

std::optional<DigestAuth> DigestAuth::fromChallenges(const QByteArrayList &challenges)
{
    QList<Challenge> all;
    for (const QByteArray &text : challenges) {
        if (text.size() > maxChallengeBytes)
            continue;
        ChallengeParser parser(text);
        const int before = all.size();
        for (parser.skip(','); !parser.atEnd(); parser.skip(',')) {
            const QByteArray name = parser.token();
            if (!parser.takesEquals()) {
                all.append({name, {}, false});
            } else if (const QByteArray value = parser.value(); all.size() > before) {
                all.last().hasDoubles |= all.last().parameters.contains(name);
                all.last().parameters.insert(name, value);
            }
        }
    }
    std::optional<DigestAuth> best;
    for (const Challenge &challenge : qAsConst(all)) {
        const std::optional<DigestAuth> auth = fromChallenge(challenge);
        if (auth && (!best || (auth->m_isSha256 && !best->m_isSha256)))
            best = auth;
    }
    return best;
}

QByteArray DigestAuth::authorization(const QString &userName, const QString &password, const QByteArray &uri,
                                     const QByteArray &method, const QByteArray &clientNonce)
{
    const auto hash = [this](const QByteArray &text) {
        return QCryptographicHash::hash(text, m_isSha256 ? QCryptographicHash::Sha256 : QCryptographicHash::Md5)
            .toHex();
    };
    const QByteArray cnonce = clientNonce.isEmpty() ? makeClientNonce() : clientNonce;
    const QByteArray count = QByteArray::number(++m_uses, 16).rightJustified(8, '0');
    QByteArray account = hash(userName.toUtf8() + ':' + m_realm + ':' + password.toUtf8());
    if (m_isSession)
        account = hash(account + ':' + m_nonce + ':' + cnonce);
    const QByteArray use = m_hasQop ? ':' + count + ':' + cnonce + ":auth" : QByteArray();
    const QByteArray response = hash(account + ':' + m_nonce + use + ':' + hash(method + ':' + uri));

    QByteArray header = "Digest username=" + quoted(userName.toUtf8()) + ", realm=" + quoted(m_realm)
                      + ", nonce=" + quoted(m_nonce) + ", uri=" + quoted(uri) + ", response=\"" + response + '"';
    if (!m_algorithm.isEmpty())
        header += ", algorithm=" + m_algorithm;
    if (m_hasQop)
        header += ", qop=auth, nc=" + count;
    if (m_hasQop || m_isSession)
        header += ", cnonce=" + quoted(cnonce);
    if (m_hasOpaque)
        header += ", opaque=" + quoted(m_opaque);
    return header;
}

} // namespace vms_sdk
