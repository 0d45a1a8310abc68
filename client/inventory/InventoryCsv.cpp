#include "client/inventory/InventoryCsv.h"

#include "programs/Csv.h"
#include "programs/CsvReader.h"

#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/InventoryEntries.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace orda_client {

using orda_programs::csvText;
using vms_sdk::InventoryEntries;

namespace {

enum class Kind
{
    Text,
    Secret, ///< whose blanks count
    Number,
    Flag
};

struct Field
{
    const char *name;
    Kind kind = Kind::Text;
};

constexpr Field fields[]{{"id"},
                         {"name"},
                         {"serialNumber"},
                         {"protocol"},
                         {"ip"},
                         {"port", Kind::Number},
                         {"path"},
                         {"tls", Kind::Flag},
                         {"url"},
                         {"fingerprint"},
                         {"userName", Kind::Secret},
                         {"password", Kind::Secret},
                         {"accessCode", Kind::Number},
                         {"kindCode", Kind::Number},
                         {"group"}};

/// Null for a name that is no field. Spreadsheets' users write them in capitals or not.
const Field *findField(const QString &name)
{
    const auto *found = std::find_if(std::begin(fields), std::end(fields), [&name](const Field &field) {
        return name.compare(QLatin1String(field.name), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(fields) ? nullptr : found;
}

/// A cell as the inventory file would have it. What is no number stays a text, which is complained of there.
QJsonValue valueOf(const QString &cell, Kind kind)
{
    const QString text = kind == Kind::Secret ? cell : cell.trimmed();
    if (kind == Kind::Number) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        return isNumber ? QJsonValue(number) : QJsonValue(text);
    }
    if (kind == Kind::Flag)
        for (const bool flag : {true, false})
            if (text.compare(QLatin1String(flag ? "true" : "false"), Qt::CaseInsensitive) == 0)
                return flag;
    return text;
}

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::InventoryCsv)

public:
    InventoryCsv::Content read(const QByteArray &content);

private:
    void complain(int line, int column, const QString &field, const QString &what)
    {
        m_result.faults.append({line, column, field, what});
    }
    void takeHead(const orda_programs::CsvRow &row);
    void takeDevice(const orda_programs::CsvRow &row);
    void checkDevices();

    InventoryCsv::Content m_result;
    int m_columns = 0;
    int m_headLine = 1;
    QHash<int, const Field *> m_fields; // by column
    QVector<InventoryEntries::Entry> m_entries;
    QVector<int> m_lines; // by entry
};

InventoryCsv::Content Reader::read(const QByteArray &content)
{
    const orda_programs::CsvRows csv =
        orda_programs::readCsv(content.startsWith("\xEF\xBB\xBF") ? content.mid(3) : content);
    for (const orda_programs::CsvRow &row : csv.rows) {
        for (const int line : row.notUtf8)
            complain(line, 1, {}, tr("is not UTF-8; save the file as CSV in UTF-8"));
        if (m_columns == 0)
            takeHead(row);
        else if (row.notUtf8.isEmpty())
            takeDevice(row);
    }
    if (csv.brokenLine > 0)
        complain(csv.brokenLine, csv.brokenCell, {},
                 tr("wrong quotation marks: they stand around a whole cell, and one within it is written twice"));
    else if (m_columns == 0)
        complain(1, 1, {}, tr("is empty; a line with the names of the columns is expected, such as id, ip and port"));
    else if (m_entries.isEmpty() && m_result.faults.isEmpty())
        complain(csv.lines + 1, 1, {}, tr("ends after its head; a line for each device is expected"));
    checkDevices();
    std::stable_sort(m_result.faults.begin(), m_result.faults.end(), [](const auto &a, const auto &b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    if (!m_result.faults.isEmpty())
        m_result.devices.clear();
    return m_result;
}

void Reader::takeHead(const orda_programs::CsvRow &row)
{
    m_columns = row.cells.size();
    m_headLine = row.line;
    QHash<const Field *, int> columns;
    for (int column = 0; column < m_columns; ++column) {
        const QString name = csvText(row.cells.at(column)).trimmed();
        const Field *field = findField(name);
        if (!field && !name.isEmpty())
            m_result.unusedColumns.append(name);
        else if (field && columns.contains(field))
            complain(row.line, column + 1, name,
                     tr("the column is there already, as number %1").arg(columns.value(field)));
        else if (field)
            m_fields.insert(column, field);
        if (field && !columns.contains(field))
            columns.insert(field, column + 1);
    }
    if (!columns.contains(&fields[0]))
        complain(row.line, 1, QString::fromLatin1(fields[0].name),
                 tr(R"(the column is missing; the first line names the columns, with "," or ";" between them)"));
}

void Reader::takeDevice(const orda_programs::CsvRow &row)
{
    // Spreadsheets write rows of nothing.
    if (std::all_of(row.cells.cbegin(), row.cells.cend(), [](const QString &cell) { return cell.trimmed().isEmpty(); }))
        return;
    if (row.cells.size() != m_columns) {
        complain(row.line, 1, {},
                 tr("the number of cells is %1; it must be %2, as in the head").arg(row.cells.size()).arg(m_columns));
        return;
    }
    QJsonObject entry;
    for (auto column = m_fields.cbegin(); column != m_fields.cend(); ++column) {
        const QJsonValue value = valueOf(csvText(row.cells.at(column.key())), column.value()->kind);
        if (value != QJsonValue(QString()))
            entry.insert(QLatin1String(column.value()->name), value);
    }
    m_entries.append({tr("line %1").arg(row.line), entry});
    m_lines.append(row.line);
}

void Reader::checkDevices()
{
    // Without a right head all lines would be wrong.
    const bool isHeadWrong = std::any_of(m_result.faults.cbegin(), m_result.faults.cend(),
                                         [this](const auto &fault) { return fault.line <= m_headLine; });
    if (isHeadWrong)
        return;
    const InventoryEntries checked = vms_sdk::checkInventoryEntries(m_entries);
    m_result.devices = checked.devices;
    for (const InventoryEntries::Fault &fault : checked.faults) {
        const int column = m_fields.key(findField(fault.field), 0); // a field that is missing may have no column
        complain(m_lines.at(fault.entry), column + 1, fault.field, fault.whatIsRight);
    }
}

QString cellOf(const QJsonValue &value)
{
    return value.isBool() ? QLatin1String(value.toBool() ? "true" : "false") : value.toVariant().toString();
}

} // namespace

InventoryCsv::Content InventoryCsv::read(const QByteArray &content)
{
    return Reader().read(content);
}

QByteArray InventoryCsv::text(const QList<vms_sdk::DevInfo> &devices, Passwords passwords)
{
    QStringList names;
    for (const Field &field : fields)
        names.append(QLatin1String(field.name));
    if (passwords == Passwords::Without)
        names.removeAll(QStringLiteral("password"));
    QString text = QChar(QChar::ByteOrderMark); // by which spreadsheets know UTF-8
    text += orda_programs::csvLine(names);
    const QJsonArray entries = vms_sdk::inventoryToJson(devices).value(QLatin1String("devices")).toArray();
    for (const QJsonValue &entry : entries) {
        QStringList cells;
        for (const QString &name : qAsConst(names))
            cells.append(cellOf(entry.toObject().value(name)));
        text += orda_programs::csvLine(cells);
    }
    return text.toUtf8();
}

} // namespace orda_client
