#include <vms_client_sdk/HttpHead.h>

#include <QIODevice>
#include <QList>
#include <QUrl>

#include <algorithm>
#include <array>

namespace vms_sdk {

namespace {

// Other fields are not kept: thousands of short ones would take many times the memory of their text.
constexpr std::array usedFields{"authorization",
                                "connection",
                                "content-length",
                                "expect",
                                "location",
                                "sec-websocket-accept",
                                "sec-websocket-extensions",
                                "sec-websocket-key",
                                "sec-websocket-protocol",
                                "sec-websocket-version",
                                "transfer-encoding",
                                "upgrade",
                                "www-authenticate"};

} // namespace

HttpHead::State HttpHead::read(QIODevice &device)
{
    while (device.canReadLine()) {
        const QByteArray line = device.readLine(maxLineBytes);
        m_bytes += line.size();
        if (!line.endsWith('\n') || m_bytes > maxBytes)
            return State::TooLarge;
        const QByteArray text = line.trimmed();
        if (text.isEmpty() && !m_startLine.isEmpty())
            return State::Complete;
        takeLine(text);
    }
    return device.bytesAvailable() >= maxLineBytes ? State::TooLarge : State::Incomplete;
}

void HttpHead::takeLine(const QByteArray &line)
{
    if (m_startLine.isEmpty()) {
        m_startLine = line;
        return;
    }
    const int colon = line.indexOf(':');
    if (colon <= 0)
        return;
    const QByteArray name = line.left(colon).toLower();
    if (std::none_of(usedFields.begin(), usedFields.end(), [&](const char *field) { return name == field; }))
        return;
    QByteArray &value = m_fields[name];
    if (!value.isEmpty())
        value += ',';
    value += line.mid(colon + 1).trimmed();
}

bool HttpHead::hasWord(const QByteArray &lowerCaseName, const QByteArray &lowerCaseWord) const
{
    const QList<QByteArray> words = field(lowerCaseName).toLower().split(',');
    return std::any_of(words.begin(), words.end(),
                       [&](const QByteArray &word) { return word.trimmed() == lowerCaseWord; });
}

QByteArray requestTarget(const QUrl &url)
{
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray query = url.hasQuery() ? '?' + url.query(QUrl::FullyEncoded).toLatin1() : QByteArray();
    return (path.isEmpty() ? QByteArray("/") : path) + query;
}

} // namespace vms_sdk
