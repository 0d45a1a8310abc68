#include "client/tables/TableModel.h"

#include <orda_base/SortOrder.h>
#include <vms_client_sdk/ForeignText.h>

#include <QCollatorSortKey>
#include <QFont>
#include <QTextDocument>

#include <algorithm>
#include <numeric>
#include <vector>

namespace orda_client {

namespace {

constexpr int maxShown = 2000; // characters; a message of a device may have any length

} // namespace

TableModel::SortKey TableModel::sortKey(int row, int column) const
{
    return {0, text(row, column)};
}

bool TableModel::isEmphasized(int, int) const
{
    return false;
}

TableModel::SortKey TableModel::addressKey(const QString &ip)
{
    constexpr qint64 noNumber = qint64(1) << 32; // beyond all addresses
    if (ip.isEmpty())
        return {noNumber + 1, {}};
    const auto number = orda_base::ipv4Number(ip);
    return {number ? qint64(*number) : noNumber, ip};
}

int TableModel::rank(int row, int column) const
{
    QVector<int> &ranks = m_ranks[column];
    if (ranks.size() != rowCount()) {
        const int count = rowCount();
        struct Key
        {
            qint64 number;
            QCollatorSortKey text;
        };
        std::vector<Key> keys;
        keys.reserve(std::size_t(count));
        for (int i = 0; i < count; ++i) {
            const SortKey key = sortKey(i, column);
            keys.push_back({key.number, orda_base::nameCollator().sortKey(key.text)});
        }
        const auto compare = [&keys](int left, int right) {
            const Key &a = keys[std::size_t(left)];
            const Key &b = keys[std::size_t(right)];
            return a.number != b.number ? (a.number < b.number ? -1 : 1) : a.text.compare(b.text);
        };
        std::vector<int> order(std::size_t(count), 0);
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&compare](int a, int b) { return compare(a, b) < 0; });
        ranks.resize(count);
        int place = 0;
        for (std::size_t i = 0; i < order.size(); ++i) {
            place += i > 0 && compare(order[i - 1], order[i]) < 0 ? 1 : 0;
            ranks[order[i]] = place;
        }
    }
    return ranks.at(row);
}

bool TableModel::contains(int row, const QString &keyword) const
{
    const int columns = titles().size();
    for (int column = 0; column < columns; ++column)
        if (text(row, column).contains(keyword, Qt::CaseInsensitive))
            return true;
    return false;
}

void TableModel::rowsChanged(int first, int last)
{
    m_ranks.clear();
    emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void TableModel::endReset()
{
    m_ranks.clear();
    m_columns = -1;
    endResetModel();
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    if (m_columns < 0)
        m_columns = titles().size();
    return parent.isValid() ? 0 : m_columns;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return vms_sdk::displayText(
            text(index.row(), index.column()).left(maxShown).replace(QLatin1Char('\n'), QChar(0x21B5)));
    case Qt::EditRole:
        return text(index.row(), index.column());
    case Qt::ToolTipRole: {
        const QString shown =
            vms_sdk::displayText(text(index.row(), index.column()).left(maxShown), QStringLiteral("\n"));
        return shown.isEmpty() ? QString() : Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal);
    }
    case Qt::FontRole:
        if (isEmphasized(index.row(), index.column())) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? vms_sdk::displayText(titles().value(section))
                                   : QVariant(); // names of members, too
}

} // namespace orda_client
