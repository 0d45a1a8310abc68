#include "client/runs/RunListModel.h"

#include <algorithm>

namespace orda_client {

namespace {

int failuresIn(const orda_journal::RunRow &run)
{
    int failures = 0;
    for (auto count = run.counts.cbegin(); count != run.counts.cend(); ++count)
        failures += RunTexts::isFailure(count.key()) ? count.value() : 0;
    return failures;
}

} // namespace

void RunListModel::setLines(const QVector<RunLine> &lines)
{
    beginResetModel();
    m_lines = lines;
    endReset();
}

int RunListModel::rowOf(const QString &runId) const
{
    const auto found = std::find_if(m_lines.cbegin(), m_lines.cend(),
                                    [&runId](const RunLine &candidate) { return candidate.run.id == runId; });
    return found == m_lines.cend() ? -1 : int(found - m_lines.cbegin());
}

int RunListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

QStringList RunListModel::titles() const
{
    return {tr("Began"), tr("Parameters"), tr("Kind"), tr("Devices"), tr("Values"), tr("Duration"), tr("Program")};
}

QString RunListModel::text(int row, int column) const
{
    const RunLine &line = m_lines.at(row);
    switch (column) {
    case Began:
        return RunTexts::time(line.run.began);
    case FamilyTitle:
        return line.family;
    case Kind:
        return line.kind;
    case Counts:
        return RunTexts::counts(line.run);
    case Duration:
        return RunTexts::duration(line.run);
    case Values:
        return line.values;
    default:
        return line.run.program;
    }
}

TableModel::SortKey RunListModel::sortKey(int row, int column) const
{
    const orda_journal::RunRow &run = m_lines.at(row).run;
    switch (column) {
    case Began:
        return {run.began};
    case Counts:
        return {failuresIn(run), text(row, column)};
    case Duration:
        return {run.ended == 0 ? 0 : run.ended - run.began};
    default:
        return TableModel::sortKey(row, column);
    }
}

bool RunListModel::isEmphasized(int row, int column) const
{
    return column == Counts && failuresIn(m_lines.at(row).run) > 0;
}

} // namespace orda_client
