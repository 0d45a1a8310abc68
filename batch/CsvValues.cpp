#include "batch/ValuesFile.h"

#include "programs/Csv.h"

#include <QCoreApplication>
#include <QHash>
#include <QTextCodec>

#include <csv.h>

#include <algorithm>

namespace orda_batch {

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
    Q_DECLARE_TR_FUNCTIONS(orda_batch::CsvValues)

public:
    ValuesFile read(const QByteArray &content);

private:
    /// @return whether its quotation marks are right
    bool readLines(const QByteArray &content);
    bool readLine(csv_parser *parser, const char *text, int size);
    void complain(int line, int column, const QString &what) { m_file.faults.append({{line, column}, what}); }
    void takeRow();
    void takeHead();
    void takeValues();

    static void endCell(void *text, std::size_t size, void *reader)
    {
        auto *self = static_cast<CsvReader *>(reader);
        self->m_cells.append(QString::fromUtf8(static_cast<const char *>(text), int(size)));
    }
    static void endRow(int, void *reader) { static_cast<CsvReader *>(reader)->takeRow(); }

    ValuesFile m_file;
    QStringList m_cells; // of the row that is being read
    int m_line = 0; // the last that was begun
    int m_rowLine = 0; // where the row begins: a cell in quotation marks may have several lines
    bool m_isInRow = false;
    bool m_isRowSpoilt = false;
    QStringList m_head; // empty before it
    int m_deviceColumn = -1;
    QHash<int, QString> m_keys; // by column
};

ValuesFile CsvReader::read(const QByteArray &content)
{
    m_file.isCsv = true;
    m_file.isByDevice = true;
    if (!readLines(content))
        complain(m_rowLine, m_cells.size() + 1,
                 tr("wrong quotation marks: they stand around a whole cell, and one within it is written twice"));
    else if (m_head.isEmpty())
        complain(1, 1, tr(R"(is empty; a line with "device" and keys is expected)"));
    else if (m_file.rows.isEmpty() && m_file.faults.isEmpty())
        complain(m_line + 1, 1, tr("ends after its head; a line for each device is expected"));
    return m_file;
}

bool CsvReader::readLines(const QByteArray &content)
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
    return isRight;
}

bool CsvReader::readLine(csv_parser *parser, const char *text, int size)
{
    ++m_line;
    if (!m_isInRow)
        m_rowLine = m_line;
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(utf8Mib)->toUnicode(text, size, &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        complain(m_line, 1, tr("is not UTF-8; save the file as CSV in UTF-8"));
        m_isRowSpoilt = true;
    }
    m_isInRow = m_isInRow || (text[0] != '\n' && text[0] != '\r');
    return csv_parse(parser, text, std::size_t(size), endCell, endRow, this) == std::size_t(size);
}

void CsvReader::takeRow()
{
    if (m_head.isEmpty())
        takeHead();
    else if (!m_isRowSpoilt)
        takeValues();
    m_cells.clear();
    m_isInRow = false;
    m_isRowSpoilt = false;
}

void CsvReader::takeHead()
{
    for (int column = 0; column < m_cells.size(); ++column) {
        const QString name = orda_programs::withoutFormulaGuard(m_cells.at(column)).trimmed();
        const int first = m_head.indexOf(name);
        m_head.append(name);
        if (name.isEmpty())
            complain(m_rowLine, column + 1, tr("the column has no name; a key is expected"));
        else if (first >= 0)
            complain(m_rowLine, column + 1,
                     tr(R"(the column "%1" is there already, as number %2)").arg(name, QString::number(first + 1)));
        else if (isDeviceName(name))
            m_deviceColumn = column;
        else if (!isForPeople(name))
            m_keys.insert(column, name);
    }
    for (int column = 0; column < m_head.size(); ++column)
        if (m_keys.contains(column))
            m_file.head.append({{m_rowLine, column + 1}, m_keys.value(column)});
    if (m_deviceColumn < 0)
        complain(
            m_rowLine, 1,
            tr(R"(no column "device", with the id or serial number of each row (columns stand between "," or ";"))"));
}

void CsvReader::takeValues()
{
    // Spreadsheets write rows of nothing.
    if (std::all_of(m_cells.cbegin(), m_cells.cend(), [](const QString &cell) { return cell.trimmed().isEmpty(); }))
        return;
    if (m_cells.size() != m_head.size())
        return complain(
            m_rowLine, 1,
            tr("the number of cells is %1; it must be %2, as in the head").arg(m_cells.size()).arg(m_head.size()));
    FileRow row{{m_rowLine, m_deviceColumn + 1}};
    if (m_deviceColumn >= 0) {
        row.device = orda_programs::withoutFormulaGuard(m_cells.at(m_deviceColumn)).trimmed();
        if (row.device.isEmpty()) {
            complain(m_rowLine, m_deviceColumn + 1, tr("names no device; its id or serial number is expected"));
            row.device = QString();
        }
    }
    for (int column = 0; column < m_cells.size(); ++column)
        if (m_keys.contains(column) && !m_cells.at(column).trimmed().isEmpty())
            row.cells.append({{m_rowLine, column + 1},
                              m_keys.value(column),
                              orda_programs::withoutFormulaGuard(m_cells.at(column))});
    m_file.rows.append(row);
}

} // namespace

ValuesFile readCsvValues(const QByteArray &content)
{
    return CsvReader().read(content);
}

} // namespace orda_batch
