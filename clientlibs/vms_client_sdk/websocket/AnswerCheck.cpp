#include <vms_client_sdk/websocket/AnswerCheck.h>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <vector>

namespace vms_sdk {

namespace {

using rapidjson::SizeType;

constexpr const char *notJson = "is not a JSON object or array";
constexpr const char *tooDeep = "is nested too deeply";
constexpr const char *tooLarge = "is too large to be written back";
constexpr const char *doubledKey = "names a key twice in one object";

/// Puts blanks in place of the control characters that are in strings as they are: QJsonDocument takes those, RapidJSON
/// does not. @return how many there were
qint64 replaceRawControls(QByteArray &text)
{
    qint64 count = 0;
    bool isInString = false;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (c == '"') {
            isInString = !isInString;
        } else if (isInString && c == '\\') {
            ++i; // the escaped character
        } else if (isInString && uchar(c) < 0x20) {
            text[i] = ' ';
            ++count;
        }
    }
    return count;
}

/// Is called for the parts of the text in their order. Returning false ends the reading.
class Limits : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Limits>
{
public:
    explicit Limits(qint64 rawControls)
        : m_writtenBytes(rawControls * escapeBytes)
    {
    }

    const char *fault() const { return m_fault; }
    qint64 writtenBytes() const { return m_writtenBytes; }

    bool Null() { return value(4); }
    bool Bool(bool) { return value(5); }
    bool RawNumber(const char *digits, SizeType length, bool /*copy*/) { return value(numberBytes(digits, length)); }
    bool String(const char *text, SizeType length, bool /*copy*/) { return value(textBytes(text, length)); }
    bool Key(const char *text, SizeType length, bool /*copy*/)
    {
        // A hash takes eight bytes, however long the key is. Two different keys with the same hash are so rare that
        // nobody meets them; the device would lose only the answer that has them.
        m_keys.push_back(std::hash<std::string_view>()({text, length}));
        return grow(indentation() + textBytes(text, length) + 2); // ": "
    }
    bool StartObject() { return open(false); }
    bool StartArray() { return open(true); }
    bool EndObject(SizeType /*members*/) { return keysDiffer() && close(); }
    bool EndArray(SizeType /*elements*/) { return close(); }

private:
    static constexpr qint64 escapeBytes = 5; ///< that \u001f takes more than the character

    struct Level
    {
        bool isArray;
        std::size_t firstKey; ///< in m_keys
    };

    bool fail(const char *fault)
    {
        m_fault = fault;
        return false;
    }

    bool grow(qint64 bytes)
    {
        m_writtenBytes += bytes;
        return m_writtenBytes <= maxWrittenBytes || fail(tooLarge);
    }

    /// Before a member or an element; in a write everything lies a level deeper.
    qint64 indentation() const { return 4 * qint64(m_depth + 1); }
    /// An element has a line of its own, a member that of its key.
    qint64 lineStart() const { return m_depth > 0 && m_levels[m_depth - 1].isArray ? indentation() : 0; }

    bool value(qint64 bytes)
    {
        return m_depth > 0 ? grow(lineStart() + bytes + 2) : fail(notJson); // a comma and a line break
    }

    bool open(bool isArray)
    {
        if (m_depth == m_levels.size())
            return fail(tooDeep);
        const qint64 start = lineStart();
        m_levels[m_depth++] = {isArray, m_keys.size()};
        return grow(start + 2); // a bracket and a line break
    }

    bool close()
    {
        m_keys.resize(m_levels[--m_depth].firstKey);
        return grow(indentation() + 3); // blanks, a bracket, a comma and a line break
    }

    bool keysDiffer()
    {
        const auto first = m_keys.begin() + std::ptrdiff_t(m_levels[m_depth - 1].firstKey);
        std::sort(first, m_keys.end());
        return std::adjacent_find(first, m_keys.end()) == m_keys.end() || fail(doubledKey);
    }

    static qint64 numberBytes(const char *digits, SizeType length)
    {
        // Short integers are written as they came; all others may become a double, and this is the longest one.
        constexpr SizeType longestShort = 15;
        constexpr qint64 longestDouble = 25; // -2.2250738585072014e-308, and one to spare
        const bool isShort = length <= longestShort && std::all_of(digits, digits + length, [](char c) {
                                 return c == '-' || (c >= '0' && c <= '9');
                             });
        return isShort ? qint64(length) : longestDouble;
    }

    static qint64 textBytes(const char *text, SizeType length)
    {
        qint64 bytes = qint64(length) + 2; // quotation marks
        for (SizeType i = 0; i < length; ++i) {
            const auto c = uchar(text[i]);
            if (c < 0x20)
                bytes += escapeBytes;
            else if (c == '"' || c == '\\')
                ++bytes;
        }
        return bytes;
    }

    std::array<Level, maxJsonDepth> m_levels{};
    std::size_t m_depth = 0;
    std::vector<std::size_t> m_keys; ///< hashes of the keys of all objects that are open
    qint64 m_writtenBytes;
    const char *m_fault = nullptr;
};

} // namespace

AnswerCheck checkAnswer(const QByteArray &received)
{
    QByteArray utf8 = received;
    const qint64 rawControls = replaceRawControls(utf8);
    constexpr int byteOrderMarkBytes = 3;
    const int start = utf8.startsWith("\xEF\xBB\xBF") ? byteOrderMarkBytes : 0; // QJsonDocument skips it too
    const auto size = std::size_t(utf8.size() - start);
    rapidjson::MemoryStream stream(utf8.constData() + start, size);
    Limits limits(rawControls);
    // Iterative: a recursive parser would run out of stack on a deeply nested text.
    constexpr unsigned flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag;
    const bool isJson = !rapidjson::Reader().Parse<flags>(stream, limits).IsError() && stream.Tell() == size;
    const char *otherFault = isJson ? nullptr : notJson;
    const char *fault = limits.fault() ? limits.fault() : otherFault;
    return {fault, fault != notJson, limits.writtenBytes()};
}

} // namespace vms_sdk
