#include "client/FailedDevices.h"

#include <orda_base/DisabledWaitingWt.h>

#include <QHash>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int checkColumn = 0;
constexpr int serialNumberColumn = 2;

// Two devices may have the same serial number.
QHash<QString, QList<int>> rowsBySerialNumber(const QTableWidget *table)
{
    QHash<QString, QList<int>> rows;
    for (int row = 0; row < table->rowCount(); ++row)
        rows[table->item(row, serialNumberColumn)->text()].append(row);
    return rows;
}

QHash<QString, int> timesInRecord(const QVector<RunEntry> &entries)
{
    QHash<QString, int> times;
    for (const RunEntry &entry : entries)
        ++times[entry.serialNumber];
    return times;
}

QString deviceText(const RunEntry &entry)
{
    QString text = entry.outcome == RunEntry::Unreadable                ? entry.message
                 : entry.name.isEmpty() && entry.serialNumber.isEmpty() ? FailedDevices::tr("a device without a name")
                 : entry.name.isEmpty()                                 ? entry.serialNumber
                 : entry.serialNumber.isEmpty()                         ? entry.name
                                                : QStringLiteral("%1 (%2)").arg(entry.name, entry.serialNumber);
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

QWidget *FailedDevices::runOverlay(const QWidget *form)
{
    const auto overlays = form->findChildren<orda_base::DisabledWaitingWt *>();
    const auto found =
        std::find_if(overlays.begin(), overlays.end(), [](const QWidget *overlay) { return !overlay->isHidden(); });
    return found == overlays.end() ? nullptr : *found;
}

FailedDevices::Ticked FailedDevices::tickAgain(QWidget *form, const QVector<RunEntry> &entries)
{
    auto *table = form->findChild<QTableWidget *>(QStringLiteral("devsTableWt"));
    const QHash<QString, QList<int>> rows = rowsBySerialNumber(table);
    const QHash<QString, int> times = timesInRecord(entries);
    const auto doubt = [&](const RunEntry &entry) {
        if (entry.outcome == RunEntry::Unreadable)
            return tr("its entry in the record cannot be read");
        if (entry.serialNumber.isEmpty())
            return tr("it has no serial number");
        if (times.value(entry.serialNumber) > 1)
            return tr("several devices of the run have its serial number");
        const int inList = rows.value(entry.serialNumber).size();
        if (inList == 0)
            return tr("it is not in the list now: offline, or not to be configured");
        return inList > 1 ? tr("several devices in the list have its serial number") : QString();
    };

    Ticked result;
    int first = table->rowCount();
    bool isOneHidden = false;
    {
        // One signal for all rows at the end: at each signal the list looks at all its rows.
        const QSignalBlocker blocker(table->model());
        for (int row = 0; row < table->rowCount(); ++row)
            table->item(row, checkColumn)->setCheckState(Qt::Unchecked);
        for (const RunEntry &entry : entries) {
            if (entry.outcome == RunEntry::Succeeded)
                continue;
            const QString why = doubt(entry);
            if (!why.isEmpty()) {
                result.notTicked.append(tr("%1: %2").arg(deviceText(entry), why));
                continue;
            }
            const int row = rows.value(entry.serialNumber).constFirst();
            table->item(row, checkColumn)->setCheckState(Qt::Checked);
            first = std::min(first, row);
            isOneHidden |= table->isRowHidden(row);
            ++result.count;
        }
    }
    if (table->rowCount() > 0) {
        QAbstractItemModel *model = table->model();
        emit model->dataChanged(model->index(0, checkColumn), model->index(table->rowCount() - 1, checkColumn),
                                {Qt::CheckStateRole});
    }
    if (isOneHidden) {
        form->findChild<QWidget *>(QStringLiteral("searchBox"))->findChild<QLineEdit *>()->clear();
        result.isSearchCleared = true;
    }
    if (result.count > 0)
        table->scrollToItem(table->item(first, checkColumn));
    return result;
}

} // namespace orda_client
