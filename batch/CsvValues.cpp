#include "batch/ValuesFile.h"

#include "programs/Csv.h"
#include "programs/CsvReader.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace orda_batch {

using orda_programs::CsvRow;
using orda_programs::CsvRows;
using orda_programs::csvText;
using orda_programs::readCsv;

namespace {

class CsvValuesReader
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::CsvValues)

public:
    ValuesFile read(const QByteArray &content);

private:
    void complain(int line, int column, const QString &what) { m_file.faults.append({{line, column}, what}); }
    void takeRow(const CsvRow &row);
    void takeHead();
    void takeValues();

    ValuesFile m_file;
    QStringList m_cells; // of the row that is being read
    int m_rowLine = 0; // where the row begins
    QStringList m_head; // empty before it
    int m_deviceColumn = -1;
    QHash<int, QString> m_keys; // by column
};

ValuesFile CsvValuesReader::read(const QByteArray &content)
{
    m_file.isCsv = true;
    m_file.isByDevice = true;
    const CsvRows csv = readCsv(content);
    for (const CsvRow &row : csv.rows)
        takeRow(row);
    if (csv.brokenLine > 0)
        complain(csv.brokenLine, csv.brokenCell,
                 tr("wrong quotation marks: they stand around a whole cell, and one within it is written twice"));
    else if (m_head.isEmpty())
        complain(1, 1, tr(R"(is empty; a line with "device" and keys is expected)"));
    else if (m_file.rows.isEmpty() && m_file.faults.isEmpty())
        complain(csv.lines + 1, 1, tr("ends after its head; a line for each device is expected"));
    return m_file;
}

void CsvValuesReader::takeRow(const CsvRow &row)
{
    for (const int line : row.notUtf8)
        complain(line, 1, tr("is not UTF-8; save the file as CSV in UTF-8"));
    m_rowLine = row.line;
    m_cells = row.cells;
    if (m_head.isEmpty())
        takeHead();
    else if (row.notUtf8.isEmpty())
        takeValues();
}

void CsvValuesReader::takeHead()
{
    for (int column = 0; column < m_cells.size(); ++column) {
        const QString name = csvText(m_cells.at(column)).trimmed();
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

void CsvValuesReader::takeValues()
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
        row.device = csvText(m_cells.at(m_deviceColumn)).trimmed();
        if (row.device.isEmpty()) {
            complain(m_rowLine, m_deviceColumn + 1, tr("names no device; its id or serial number is expected"));
            row.device = QString();
        }
    }
    for (int column = 0; column < m_cells.size(); ++column)
        if (m_keys.contains(column) && !m_cells.at(column).trimmed().isEmpty())
            row.cells.append({{m_rowLine, column + 1}, m_keys.value(column), csvText(m_cells.at(column))});
    m_file.rows.append(row);
}

} // namespace

ValuesFile readCsvValues(const QByteArray &content)
{
    return CsvValuesReader().read(content);
}

} // namespace orda_batch
