#include <vms_client_sdk/onvif/HttpAnswerReader.h>

#include <vms_client_sdk/ForeignText.h>

#include <QIODevice>

#include <algorithm>
#include <cctype>
#include <optional>

namespace vms_sdk {

namespace {

// The size of a chunk and its extensions, or a trailing header field.
constexpr qint64 maxLineBytes = 1024;

// Heads such as "100 Continue" before the answer itself; nobody asks for them here.
constexpr int maxInterimHeads = 4;

// What a log line, or a message in a window, takes of a device's words.
constexpr int maxShown = 200;

/// Digits and nothing else; nothing for a number that is beyond all limits.
std::optional<qint64> numberFrom(const QByteArray &text, int base)
{
    const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber, base);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

HttpAnswerReader::HttpAnswerReader(qint64 maxBytes)
    : m_maxBytes(maxBytes)
{
}

HttpAnswerReader::State HttpAnswerReader::read(QIODevice &device)
{
    m_hasBegun |= device.bytesAvailable() > 0;
    State state = State::Incomplete;
    for (bool goesOn = true; goesOn && state == State::Incomplete;)
        state = readPart(device, &goesOn);
    return state;
}

HttpAnswerReader::State HttpAnswerReader::end()
{
    if (m_part == Part::ContentToEnd)
        return State::Complete;
    return broken(TroubleReason::ConnectionLost, m_hasBegun ? QStringLiteral("connection closed within the answer")
                                                            : QStringLiteral("connection closed before an answer"));
}

HttpAnswerReader::State HttpAnswerReader::readPart(QIODevice &device, bool *goesOn)
{
    if (m_part == Part::Head) {
        const HttpHead::State state = m_head.read(device);
        if (state == HttpHead::State::TooLarge)
            return broken(TroubleReason::Limits, QStringLiteral("its header is longer than anybody needs"));
        *goesOn = state == HttpHead::State::Complete;
        return *goesOn ? takeHead() : State::Incomplete;
    }
    const bool isData = m_part == Part::Content || m_part == Part::Chunk || m_part == Part::ContentToEnd;
    const bool hasLine = !isData && device.canReadLine();
    if (!isData && !hasLine && device.bytesAvailable() >= maxLineBytes)
        return broken(TroubleReason::Limits, QStringLiteral("the size of a chunk is longer than anybody needs"));
    const qint64 arrived = device.bytesAvailable(); // no memory is taken for a size that is only claimed
    const qint64 wanted = m_part == Part::ContentToEnd ? arrived : qMin(m_left, arrived);
    const QByteArray bytes = isData ? device.read(wanted) : hasLine ? device.readLine(maxLineBytes) : QByteArray();
    *goesOn = !bytes.isEmpty();
    m_bytes += bytes.size();
    if (m_bytes > m_maxBytes)
        return tooLong();
    if (!isData)
        return hasLine ? takeLine(bytes) : State::Incomplete;
    m_answer.body += bytes;
    if (m_part == Part::ContentToEnd)
        return State::Incomplete;
    m_left -= bytes.size();
    if (m_left > 0)
        return State::Incomplete;
    if (m_part == Part::Content)
        return State::Complete;
    m_part = Part::ChunkEnd;
    return State::Incomplete;
}

HttpAnswerReader::State HttpAnswerReader::takeHead()
{
    const QByteArray line = m_head.startLine();
    const int status = numberFrom(line.mid(9, 3), 10).value_or(0);
    if (!line.startsWith("HTTP/1.") || line.mid(8, 1) != " " || line.mid(12, 1).trimmed() != "" || status < 100
        || status > 599)
        return broken(TroubleReason::SignOn, QStringLiteral("what it answers is no HTTP"));
    if (status < 200) {
        m_head = {};
        if (status == 101 || ++m_interimHeads > maxInterimHeads)
            return broken(TroubleReason::SignOn, QStringLiteral("it answers with HTTP %1").arg(status));
        return State::Incomplete;
    }
    const bool isOld = line.at(7) == '0';
    m_canStayOpen = isOld ? m_head.hasWord("connection", "keep-alive") : !m_head.hasWord("connection", "close");
    const QByteArray challenges = m_head.field("www-authenticate");
    if (!challenges.isEmpty())
        m_answer.challenges.append(challenges);
    if (status >= 300 && status < 400) {
        const QString where = QString::fromUtf8(m_head.field("location")).left(maxShown);
        m_answer.error = QStringLiteral("it redirects (HTTP %1) to \"%2\", which is not followed")
                             .arg(QString::number(status), escaped(where));
    }
    const State state = takeFraming(status);
    if (state != State::Broken)
        m_answer.status = status;
    m_head = {};
    return state;
}

HttpAnswerReader::State HttpAnswerReader::takeFraming(int status)
{
    if (status == 204 || status == 304)
        return State::Complete;
    const QByteArray encoding = m_head.field("transfer-encoding").toLower();
    const QByteArray length = m_head.field("content-length");
    if (!encoding.isEmpty() && encoding != "identity") {
        if (encoding != "chunked")
            return broken(TroubleReason::SignOn, QStringLiteral("it answers in an encoding that is not known here"));
        m_canStayOpen &= length.isEmpty(); // with both, two readers may see different answers
        m_part = Part::ChunkSize;
        return State::Incomplete;
    }
    if (length.isEmpty()) {
        m_canStayOpen = false;
        m_part = Part::ContentToEnd;
        return State::Incomplete;
    }
    const bool isNumber = std::all_of(length.begin(), length.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber)
        return broken(TroubleReason::SignOn, QStringLiteral("it answers with a length that is no number"));
    const std::optional<qint64> left = numberFrom(length, 10);
    if (!left || *left > m_maxBytes)
        return tooLong();
    m_left = *left;
    m_part = Part::Content;
    return m_left == 0 ? State::Complete : State::Incomplete;
}

/// A line of the framing of chunks.
HttpAnswerReader::State HttpAnswerReader::takeLine(const QByteArray &line)
{
    const QByteArray text = line.trimmed();
    if (m_part == Part::Trailer)
        return text.isEmpty() ? State::Complete : State::Incomplete;
    if (m_part == Part::ChunkEnd) {
        m_part = Part::ChunkSize;
        return text.isEmpty() ? State::Incomplete
                              : broken(TroubleReason::SignOn, QStringLiteral("its chunks are longer than they say"));
    }
    const std::optional<qint64> size = numberFrom(text.split(';').constFirst().trimmed(), 16);
    if (!size)
        return broken(TroubleReason::SignOn, QStringLiteral("the size of a chunk is no number"));
    if (*size > m_maxBytes)
        return tooLong();
    m_left = *size;
    m_part = *size == 0 ? Part::Trailer : Part::Chunk;
    return State::Incomplete;
}

HttpAnswerReader::State HttpAnswerReader::tooLong()
{
    return broken(TroubleReason::Limits, QStringLiteral("the answer is longer than %1 KiB").arg(m_maxBytes / 1024));
}

HttpAnswerReader::State HttpAnswerReader::broken(TroubleReason reason, const QString &why)
{
    m_answer = {};
    m_answer.reason = reason;
    m_answer.error = why;
    m_answer.hasLeft = true;
    m_canStayOpen = false;
    return State::Broken;
}

} // namespace vms_sdk
