#include "batch/ValuesFile.h"

#include <vms_client_sdk/websocket/AnswerCheck.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include <rapidjson/reader.h>

namespace orda_batch {

namespace {

using rapidjson::SizeType;

/// What RapidJSON reads from, which tells lines and columns.
class PlacedStream
{
public:
    using Ch = char;

    explicit PlacedStream(const QByteArray &text)
        : m_text(text)
    {
    }

    Ch Peek() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }
    Ch Take()
    {
        const char c = Peek();
        ++m_at;
        if (c == '\n')
            m_place = {m_place.line + 1, 1};
        else if (!isInCharacter(c))
            ++m_place.column;
        return c;
    }
    std::size_t Tell() const { return std::size_t(m_at); }
    // For parsing in place, which is not done.
    Ch *PutBegin() { return nullptr; }
    void Put(Ch) { }
    std::size_t PutEnd(Ch *) { return 0; }

    bool isAtEnd() const { return m_at >= m_text.size(); }
    FilePlace place() const { return m_place; }
    /// Where the text begins whose closing quotation mark was taken last.
    FilePlace placeOfText() const
    {
        // One within the text has a backslash before it.
        FilePlace place = m_place;
        int at = m_at - 1;
        do {
            if (!isInCharacter(m_text.at(at)))
                --place.column;
            --at;
        } while (m_text.at(at) != '"' || m_text.at(at - 1) == '\\');
        --place.column;
        return place;
    }
    /// From a bracket to the one that was met last.
    QByteArray since(std::size_t start) const { return m_text.mid(int(start), m_at + 1 - int(start)); }

private:
    static bool isInCharacter(char c) { return (uchar(c) & 0xC0U) == 0x80U; } // and not its first byte

    const QByteArray &m_text;
    int m_at = 0;
    FilePlace m_place;
};

/// Makes rows of what the parser tells.
class RowHandler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, RowHandler>
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::JsonValues)

public:
    RowHandler(const PlacedStream &stream, ValuesFile *file)
        : m_stream(stream)
        , m_file(file)
    {
    }

    bool Null() { return take(QJsonValue::Null); }
    bool Bool(bool value) { return take(value); }
    bool Int(int value) { return take(value); }
    bool Uint(unsigned value) { return take(qint64(value)); }
    bool Int64(qint64 value) { return take(value); }
    bool Uint64(quint64 value) { return take(double(value)); }
    bool Double(double value) { return take(value); }
    bool String(const char *text, SizeType size, bool /*copy*/) { return take(QString::fromUtf8(text, int(size))); }
    bool Key(const char *text, SizeType size, bool /*copy*/);
    bool StartObject() { return open(true); }
    bool StartArray() { return open(false); }
    bool EndObject(SizeType /*members*/) { return close(); }
    bool EndArray(SizeType /*elements*/) { return close(); }

    bool hasDevices() const { return m_hasDevices; }
    const QVector<FilePlace> &withoutDevice() const { return m_withoutDevice; }

private:
    bool complain(FilePlace place, const QString &what)
    {
        m_file->faults.append({place, what});
        return true;
    }
    bool open(bool isObject);
    bool close();
    bool take(const QJsonValue &value);
    void endRow();

    const PlacedStream &m_stream;
    ValuesFile *m_file;
    int m_depth = 0;
    std::size_t m_nested = 0; // where a nested value begins
    FileRow m_row;
    FileCell m_member; // whose value comes next
    QSet<QString> m_keys; // of the row
    bool m_hasDevices = false;
    QVector<FilePlace> m_withoutDevice;
};

bool RowHandler::Key(const char *text, SizeType size, bool /*copy*/)
{
    if (m_depth == 1)
        m_member = {m_stream.placeOfText(), QString::fromUtf8(text, int(size))};
    return true;
}

bool RowHandler::open(bool isObject)
{
    if (m_depth == 0) {
        if (!isObject)
            return false;
        m_row = {m_stream.place()};
        m_keys.clear();
    } else if (m_depth == 1) {
        m_nested = m_stream.Tell();
    }
    ++m_depth;
    return true;
}

bool RowHandler::close()
{
    if (--m_depth == 0)
        endRow();
    if (m_depth != 1)
        return true;
    const QByteArray nested = m_stream.since(m_nested);
    // Some texts make QJsonDocument use gigabytes.
    if (vms_sdk::checkAnswer(nested).fault)
        return complain(m_member.place,
                        tr(R"("%1": is nested too deeply, is too large, or names a key twice)").arg(m_member.key));
    const QJsonDocument read = QJsonDocument::fromJson(nested);
    return take(read.isArray() ? QJsonValue(read.array()) : QJsonValue(read.object()));
}

bool RowHandler::take(const QJsonValue &value)
{
    if (m_depth != 1)
        return m_depth > 1; // a part of a nested value, or no object
    const int before = m_keys.size();
    m_keys.insert(m_member.key);
    if (m_keys.size() == before)
        return complain(m_member.place, tr(R"("%1" is there already in this object)").arg(m_member.key));
    if (!isDeviceName(m_member.key)) {
        m_member.value = value;
        m_row.cells.append(m_member);
    } else if (value.toString().isEmpty()) {
        complain(m_member.place, tr(R"("%1": must be an id or a serial number, a text in quotes)").arg(m_member.key));
    } else {
        m_row.device = value.toString();
        m_row.place = m_member.place;
    }
    return true;
}

void RowHandler::endRow()
{
    bool hasDevice = false;
    for (const QString &key : qAsConst(m_keys))
        hasDevice = hasDevice || isDeviceName(key);
    if (hasDevice) {
        QVector<FileCell> &cells = m_row.cells;
        cells.erase(
            std::remove_if(cells.begin(), cells.end(), [](const FileCell &cell) { return isForPeople(cell.key); }),
            cells.end());
    } else {
        m_withoutDevice.append(m_row.place);
    }
    m_hasDevices = m_hasDevices || hasDevice;
    m_file->rows.append(m_row);
}

class JsonReader
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::JsonValues)

public:
    static ValuesFile read(const QByteArray &content);

private:
    static QString textOf(rapidjson::ParseErrorCode code);
};

QString JsonReader::textOf(rapidjson::ParseErrorCode code)
{
    switch (code) {
    case rapidjson::kParseErrorTermination:
    case rapidjson::kParseErrorDocumentEmpty:
        return tr(R"(is no object; expected is {…}, or several of them one after the other, without "[" and ",")");
    case rapidjson::kParseErrorObjectMissName:
        return tr("is not JSON: a key in quotes is expected");
    case rapidjson::kParseErrorObjectMissColon:
        return tr("is not JSON: a colon is expected after a key");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return tr(R"(is not JSON: "," or "}" is expected)");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return tr(R"(is not JSON: "," or "]" is expected)");
    case rapidjson::kParseErrorStringInvalidEncoding:
        return tr("is not UTF-8; save the file in UTF-8");
    case rapidjson::kParseErrorStringMissQuotationMark:
        return tr("is not JSON: the closing quotation mark of a text is missing");
    default:
        return tr("is not JSON: a value is expected: a text in quotes, a number, true or false");
    }
}

ValuesFile JsonReader::read(const QByteArray &content)
{
    ValuesFile file;
    PlacedStream stream(content);
    RowHandler handler(stream, &file);
    rapidjson::Reader reader;
    // Iterative: a recursive parser would run out of stack on a deeply nested text.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag
                             | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseFullPrecisionFlag;
    for (rapidjson::SkipWhitespace(stream); !stream.isAtEnd(); rapidjson::SkipWhitespace(stream)) {
        const FilePlace start = stream.place();
        const rapidjson::ParseResult result = reader.Parse<flags>(stream, handler);
        if (!result.IsError())
            continue;
        const bool isNoObject = result.Code() == rapidjson::kParseErrorTermination;
        file.faults.append({isNoObject ? start : stream.place(), textOf(result.Code())});
        break;
    }
    file.isByDevice = handler.hasDevices() || file.rows.size() > 1;
    if (file.rows.isEmpty() && file.faults.isEmpty())
        file.faults.append({{}, tr("is empty; an object with keys and values is expected")});
    const QVector<FilePlace> places = file.isByDevice ? handler.withoutDevice() : QVector<FilePlace>();
    for (const FilePlace &place : places)
        file.faults.append(
            {place, tr(R"(no member "device", with an id or serial number, which each of several objects needs)")});
    return file;
}

} // namespace

ValuesFile readJsonValues(const QByteArray &content)
{
    return JsonReader::read(content);
}

bool isDeviceName(const QString &name)
{
    return name == QLatin1String("device");
}

bool isForPeople(const QString &name)
{
    static const QStringList names{QStringLiteral("serialNumber"), QStringLiteral("name"), QStringLiteral("ip"),
                                   QStringLiteral("outcome"), QStringLiteral("message")};
    return names.contains(name);
}

ValuesFile readValuesFile(const QString &path, const QByteArray &content)
{
    const QByteArray text = content.startsWith("\xEF\xBB\xBF") ? content.mid(3) : content;
    const QByteArray begin = text.left(1024).trimmed();
    const bool isNamedJson = path.endsWith(QLatin1String(".json")) || path.endsWith(QLatin1String(".jsonl"))
                          || path.endsWith(QLatin1String(".ndjson"));
    const bool isJson = begin.startsWith('{') || begin.startsWith('[') || isNamedJson;
    return isJson ? readJsonValues(text) : readCsvValues(text);
}

} // namespace orda_batch
