#include "client/devices/StateList.h"

#include <QHeaderView>
#include <QLocale>
#include <QSignalBlocker>
#include <QTextDocument>

namespace orda_client {

using orda_engine::ReachReason;

StateList::StateList(QWidget *parent)
    : orda_base::TableWidget(parent)
{
    setColumnCount(2);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    // A long reason is shortened, so that the number is always seen.
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(this, &QTableWidget::itemSelectionChanged, this, [this] {
        const QModelIndexList selected = selectionModel()->selectedRows();
        m_chosen = selected.isEmpty() ? Line() : m_lines.at(selected.constFirst().row());
        emit signalChosen();
    });
}

QString StateList::Line::text() const
{
    if (!kind)
        return StateList::tr("All devices");
    return reason ? DeviceState::text(*kind, *reason) : DeviceState::text(*kind);
}

QVector<StateList::Line> StateList::linesFor(const DevicesModel::Counts &counts) const
{
    QVector<Line> lines{{}, {DeviceState::CanBeConfigured}};
    for (const auto kind : {DeviceState::OffLine, DeviceState::NotOffered}) {
        lines.append(Line{kind});
        for (int reason = 0; reason <= int(ReachReason::Limits); ++reason) {
            const Line line{kind, ReachReason(reason)};
            if (counts.contains({kind, ReachReason(reason)}) || line == m_chosen)
                lines.append(line);
        }
    }
    return lines;
}

void StateList::setCounts(const DevicesModel::Counts &counts)
{
    const QVector<Line> lines = linesFor(counts);
    if (lines != m_lines)
        setLines(lines);
    for (int row = 0; row < m_lines.size(); ++row) {
        const Line &line = m_lines.at(row);
        int devices = 0;
        for (auto count = counts.begin(); count != counts.end(); ++count)
            if ((!line.kind || *line.kind == count.key().first) && (!line.reason || *line.reason == count.key().second))
                devices += *count;
        item(row, 1)->setText(QLocale().toString(devices));
    }
}

void StateList::setLines(const QVector<Line> &lines)
{
    const QSignalBlocker blocker(this); // the same line stays chosen
    m_lines = lines;
    setRowCount(0);
    setRowCount(lines.size());
    for (int row = 0; row < lines.size(); ++row) {
        const QString text = lines.at(row).text();
        auto *words = new QTableWidgetItem(text);
        words->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
        auto *number = new QTableWidgetItem;
        number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setItem(row, 0, words);
        setItem(row, 1, number);
    }
    selectRow(m_lines.indexOf(m_chosen));
}

bool StateList::includes(const DeviceState &state) const
{
    return (!m_chosen.kind || *m_chosen.kind == state.kind) && (!m_chosen.reason || *m_chosen.reason == state.reason);
}

} // namespace orda_client
