#include "programs/CsvReader.h"

#include <QTextCodec>

#include <csv.h>

namespace orda_programs {

namespace {

constexpr int utf8Mib = 106;

/// The first separator of the head line that is not in quotation marks.
char separatorOf(const QByteArray &content)
{
    bool isQuoted = false;
    bool isBegun = false;
    for (const char c : content) {
        const bool isLineEnd = c == '\n' || c == '\r';
        if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (c == ',' || c == ';'))
            return c;
        else if (isLineEnd && isBegun)
            break;
        isBegun = isBegun || !isLineEnd;
    }
    return ',';
}

class CsvReader
{
public:
    CsvRows read(const QByteArray &content);

private:
    bool readLine(csv_parser *parser, const char *text, int size);

    static void endCell(void *text, std::size_t size, void *reader)
    {
        auto *self = static_cast<CsvReader *>(reader);
        self->m_row.cells.append(QString::fromUtf8(static_cast<const char *>(text), int(size)));
    }
    static void endRow(int, void *reader)
    {
        auto *self = static_cast<CsvReader *>(reader);
        self->m_result.rows.append(self->m_row);
        self->m_row = {};
        self->m_isInRow = false;
    }

    CsvRows m_result;
    CsvRow m_row; // that is being read
    bool m_isInRow = false;
};

CsvRows CsvReader::read(const QByteArray &content)
{
    csv_parser parser;
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    csv_set_delim(&parser, uchar(separatorOf(content)));
    csv_set_space_func(&parser, [](uchar) { return 0; }); // blanks are a part of texts
    bool isRight = true;
    // Line by line, so that it is known where a row lies.
    for (int start = 0; isRight && start < content.size();) {
        const int lineEnd = content.indexOf('\n', start);
        const int end = lineEnd < 0 ? content.size() : lineEnd + 1;
        isRight = readLine(&parser, content.constData() + start, end - start);
        start = end;
    }
    isRight = isRight && csv_fini(&parser, endCell, endRow, this) == 0;
    csv_free(&parser);
    if (!isRight) {
        m_result.brokenLine = m_row.line;
        m_result.brokenCell = m_row.cells.size() + 1;
    }
    return m_result;
}

bool CsvReader::readLine(csv_parser *parser, const char *text, int size)
{
    ++m_result.lines;
    if (!m_isInRow)
        m_row.line = m_result.lines;
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(utf8Mib)->toUnicode(text, size, &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        m_row.notUtf8.append(m_result.lines);
    m_isInRow = m_isInRow || (text[0] != '\n' && text[0] != '\r');
    return csv_parse(parser, text, std::size_t(size), endCell, endRow, this) == std::size_t(size);
}

} // namespace

CsvRows readCsv(const QByteArray &content)
{
    return CsvReader().read(content);
}

} // namespace orda_programs
