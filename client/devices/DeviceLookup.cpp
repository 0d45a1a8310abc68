#include "client/devices/DeviceLookup.h"

#include "programs/Csv.h"

#include <QSet>

namespace orda_client {

namespace {

constexpr QLatin1Char quotationMark('"');
constexpr int longestQuoted = 60; // of a list, in a message

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

/// What stands between the cells of a table.
QString separatorOf(const QString &table)
{
    bool isQuoted = false;
    QString seen;
    for (const QChar c : table) {
        if (isLineEnd(c) && !isQuoted && !seen.isEmpty())
            break;
        isQuoted = isQuoted != (c == quotationMark);
        if (!isQuoted && !isLineEnd(c))
            seen += c;
    }
    for (const char *separator : {"\t", ";", ","})
        if (seen.contains(QLatin1String(separator)))
            return QLatin1String(separator);
    return {};
}

QString nameKey(const QString &name)
{
    return name.trimmed().toCaseFolded();
}

} // namespace

DeviceLookup::DeviceLookup(const QList<vms_sdk::DevInfo> &devices)
{
    for (const vms_sdk::DevInfo &device : devices) {
        QStringList texts{device.serialNumber, device.id, device.ip, device.url};
        if (!device.ip.isEmpty())
            texts.append(QStringLiteral("%1:%2").arg(device.ip).arg(device.port));
        for (const QString &text : qAsConst(texts))
            if (!text.trimmed().isEmpty())
                m_ids.insert(text.trimmed(), device.id);
        if (!nameKey(device.name).isEmpty())
            m_idsByName.insert(nameKey(device.name), device.id);
    }
}

/// Takes a list apart.
class DeviceLookup::Reader
{
public:
    Reader(const QString &list, const QString &separators)
        : m_list(list)
        , m_separators(separators)
    {
    }

    QVector<Line> read(QString *error);

private:
    int takeQuoted(int begin);
    void endCell();
    void endLine();

    const QString &m_list;
    const QString &m_separators;
    QVector<Line> m_lines;
    Line m_line;
    QString m_cell;
};

QVector<DeviceLookup::Line> DeviceLookup::Reader::read(QString *error)
{
    for (int i = 0; i < m_list.size(); ++i) {
        const QChar c = m_list.at(i);
        if (isLineEnd(c)) {
            endLine();
            continue;
        }
        const int begin = i;
        if (m_separators.contains(c)) {
            endCell();
        } else if (c == quotationMark && m_cell.trimmed().isEmpty()) {
            i = takeQuoted(i + 1);
            if (i == m_list.size()) {
                *error = tr("A quotation mark at the beginning of a text has no other at its end: %1")
                             .arg(m_list.mid(begin, longestQuoted).section(QLatin1Char('\n'), 0, 0));
                return {};
            }
        } else {
            m_cell += c;
        }
        m_line.whole += m_list.midRef(begin, i + 1 - begin);
    }
    endLine();
    return m_lines;
}

/// @param begin behind the opening quotation mark
/// @return where the closing one is; the size of the list: there is none
int DeviceLookup::Reader::takeQuoted(int begin)
{
    m_cell.clear();
    for (int i = begin; i < m_list.size(); ++i) {
        if (m_list.at(i) != quotationMark)
            m_cell += m_list.at(i);
        else if (i + 1 < m_list.size() && m_list.at(i + 1) == quotationMark)
            m_cell += m_list.at(++i);
        else
            return i;
    }
    return m_list.size();
}

void DeviceLookup::Reader::endCell()
{
    m_line.cells.append(m_cell.trimmed());
    m_cell.clear();
}

void DeviceLookup::Reader::endLine()
{
    endCell();
    m_line.whole = m_line.whole.trimmed();
    if (!m_line.whole.isEmpty())
        m_lines.append(m_line);
    m_line = {};
}

/// Puts texts where they belong.
class DeviceLookup::Taking
{
public:
    void take(const QString &text, const QStringList &devIds);

    Found found;

private:
    QSet<QString> m_texts, m_devIds; // that have come before
};

void DeviceLookup::Taking::take(const QString &text, const QStringList &devIds)
{
    if (text.isEmpty())
        return;
    const bool isNew = !m_texts.contains(text);
    m_texts.insert(text);
    if (devIds.isEmpty() && isNew) {
        found.unknown.append(text);
    } else if (devIds.size() > 1 && isNew) {
        found.ambiguous.append({text, devIds});
    } else if (devIds.size() == 1) {
        const QString &devId = devIds.constFirst();
        (m_devIds.contains(devId) ? found.repeated : found.devIds).append(m_devIds.contains(devId) ? text : devId);
        m_devIds.insert(devId);
    }
}

DeviceLookup::Found DeviceLookup::find(const QString &list, bool firstColumnOnly) const
{
    const QString text = list.startsWith(QChar::ByteOrderMark) ? list.mid(1) : list;
    const QString separators = firstColumnOnly ? separatorOf(text) : QStringLiteral(",;\t");
    Taking taking;
    const QVector<Line> lines = Reader(text, separators).read(&taking.found.error);
    for (const Line &line : lines) {
        const QStringList byWhole = firstColumnOnly ? QStringList() : devicesBy(line.whole);
        if (!byWhole.isEmpty()) {
            taking.take(line.whole, byWhole);
            continue;
        }
        const QStringList cells = firstColumnOnly ? QStringList(line.cells.mid(0, 1)) : line.cells;
        for (const QString &cell : cells)
            taking.take(cell, devicesByCell(cell));
    }
    return taking.found;
}

QStringList DeviceLookup::devicesBy(const QString &text) const
{
    QStringList devIds = m_ids.values(text) + m_idsByName.values(nameKey(text));
    devIds.removeDuplicates(); // one that is known by the same text twice
    devIds.sort();
    return devIds;
}

QStringList DeviceLookup::devicesByCell(const QString &cell) const
{
    const QStringList devIds = devicesBy(cell);
    return devIds.isEmpty() ? devicesBy(orda_programs::csvText(cell)) : devIds;
}

} // namespace orda_client
