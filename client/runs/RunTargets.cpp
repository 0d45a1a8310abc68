#include "client/runs/RunTargets.h"

#include "engine/Reach.h"

#include <families/Families.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QSet>

#include <algorithm>

namespace orda_client {

using orda_journal::DeviceRow;

namespace {

constexpr int maxLines = 10;

} // namespace

RunTargets RunTargets::of(const ChosenRun &run, const QStringList &devIds)
{
    const auto &store = orda_data::DevsMgrData::instance();
    const QSet<QString> isMeant(devIds.begin(), devIds.end());
    RunTargets targets;
    for (const RunDevice &device : run.devices) {
        const DeviceRow &row = device.row;
        if (!isMeant.contains(row.devId))
            continue;
        const QString serialNumber = store.getDevInfoById(row.devId).serialNumber;
        if (row.isReplacedBy(serialNumber))
            targets.leftOut.append(
                tr("%1: now it is another device, with the serial number %2").arg(RunTexts::device(row), serialNumber));
        else
            targets.selection.devIds.append(row.devId);
    }
    return targets;
}

RunTargets RunTargets::toTryAgain(const ChosenRun &run, const QStringList &devIds)
{
    RunTargets targets;
    const auto *family = orda_batchCfg::Families::find(run.line.run.family);
    if (!family)
        targets.refusal = tr("This program does not know the parameters of the run.");
    else if (run.line.run.isUnderWay)
        targets.refusal = tr("The run is still under way.");
    else if (!run.line.run.undoes.isEmpty()) // its values are those that it has taken back
        targets.refusal = tr("This run has taken another one back. To try that again, undo the other run again.");
    if (!targets.refusal.isEmpty())
        return targets;
    targets = of(run, devIds);
    const QStringList same = targets.selection.devIds;
    targets.selection = {family, {}, run.line.run.values};
    const QSet<QString> isSame(same.begin(), same.end());
    for (const RunDevice &device : run.devices) {
        const DeviceRow &row = device.row;
        if (!isSame.contains(row.devId))
            continue;
        if (!row.ownValues.isEmpty())
            targets.selection.ownValues.insert(row.devId, row.ownValues);
        if (targets.selection.valuesOf(row.devId).isEmpty()) // which would ask for everything, and set nothing
            targets.leftOut.append(tr("%1: the run has no values for it").arg(RunTexts::device(row)));
        else
            targets.selection.devIds.append(row.devId);
    }
    return targets;
}

int RunTargets::countNotReached() const
{
    return int(std::count_if(selection.devIds.cbegin(), selection.devIds.cend(),
                             [](const QString &devId) { return !orda_engine::reachOf(devId).canBeWritten; }));
}

QStringList RunTargets::leftOutLines() const
{
    QStringList lines;
    const QStringList first = leftOut.mid(0, maxLines);
    for (const QString &line : first)
        lines.append(vms_sdk::displayText(line));
    if (leftOut.size() > maxLines)
        lines.append(tr("… and %n more", "devices", leftOut.size() - maxLines));
    return lines;
}

} // namespace orda_client
