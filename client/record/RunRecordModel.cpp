#include "client/record/RunRecordModel.h"

#include <orda_base/SortOrder.h>
#include <vms_client_sdk/ForeignText.h>

#include <QFont>
#include <QTextDocument>

#include <algorithm>
#include <tuple>

namespace orda_client {

namespace {

constexpr int maxShown = 2000; // characters; an unreadable entry may have any length

} // namespace

RunRecordModel::RunRecordModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void RunRecordModel::setEntries(const QVector<RunEntry> &entries)
{
    const int known = m_entries.size();
    if (known > 0 && known <= entries.size() && std::equal(m_entries.cbegin(), m_entries.cend(), entries.cbegin())) {
        if (known == entries.size())
            return;
        beginInsertRows({}, known, entries.size() - 1);
        m_entries = entries;
        appendKeys(known);
        endInsertRows();
        return;
    }
    beginResetModel();
    m_entries = entries;
    m_keys.clear();
    appendKeys(0);
    endResetModel();
}

void RunRecordModel::appendKeys(int from)
{
    m_keys.reserve(std::size_t(m_entries.size()));
    for (int row = from; row < m_entries.size(); ++row) {
        const RunEntry &entry = m_entries.at(row);
        m_keys.push_back({orda_base::ipv4Number(entry.ip), orda_base::nameCollator().sortKey(entry.name)});
    }
}

bool RunRecordModel::isBefore(Column column, int row, int otherRow) const
{
    const RunEntry &entry = m_entries.at(row);
    const RunEntry &other = m_entries.at(otherRow);
    const Keys &keys = m_keys[std::size_t(row)];
    const Keys &otherKeys = m_keys[std::size_t(otherRow)];
    const auto isTextBefore = [](const QString &text, const QString &otherText) {
        return text != otherText && orda_base::nameCollator().compare(text, otherText) < 0;
    };
    switch (column) {
    case Outcome:
        return entry.outcome != other.outcome ? entry.outcome < other.outcome : keys.name.compare(otherKeys.name) < 0;
    case Name:
        return keys.name.compare(otherKeys.name) < 0;
    case SerialNumber:
        return isTextBefore(entry.serialNumber, other.serialNumber);
    case Ip: {
        const auto rank = [](const Keys &k, const RunEntry &e) {
            return std::make_tuple(e.ip.isEmpty(), !k.ip, k.ip.value_or(0), e.ip);
        };
        return rank(keys, entry) < rank(otherKeys, other);
    }
    case Time:
        return entry.time < other.time;
    case Message:
    case ColumnCount:
        break;
    }
    return isTextBefore(entry.message, other.message);
}

int RunRecordModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int RunRecordModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString RunRecordModel::outcomeText(RunEntry::Outcome outcome)
{
    switch (outcome) {
    case RunEntry::Failed:
        return tr("Failed");
    case RunEntry::Unreadable:
        return tr("Unreadable");
    case RunEntry::Succeeded:
        break;
    }
    return tr("Succeeded");
}

QString RunRecordModel::text(const RunEntry &entry, int column)
{
    switch (column) {
    case Outcome:
        return outcomeText(entry.outcome);
    case Name:
        return entry.name;
    case SerialNumber:
        return entry.serialNumber;
    case Ip:
        return entry.ip;
    case Time:
        return entry.time;
    default:
        return entry.message;
    }
}

QVariant RunRecordModel::data(const QModelIndex &index, int role) const
{
    const RunEntry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return vms_sdk::displayText(
            text(entry, index.column()).left(maxShown).replace(QLatin1Char('\n'), QChar(0x21B5)));
    case Qt::EditRole:
        return text(entry, index.column());
    case Qt::ToolTipRole: {
        // A tool tip would interpret a name that looks like HTML.
        const QString shown = vms_sdk::displayText(text(entry, index.column()).left(maxShown), QStringLiteral("\n"));
        return shown.isEmpty() ? QString() : Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal);
    }
    case Qt::FontRole:
        if (index.column() == Outcome && entry.outcome != RunEntry::Succeeded) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant RunRecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Outcome:
        return tr("Outcome");
    case Name:
        return tr("Name");
    case SerialNumber:
        return tr("Serial number");
    case Ip:
        return tr("IP address");
    case Time:
        return tr("Time");
    default:
        return tr("Message");
    }
}

} // namespace orda_client
