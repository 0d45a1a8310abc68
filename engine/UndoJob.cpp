#include "engine/UndoJob.h"

#include "engine/ChangeTexts.h"
#include "engine/WriteBackTask.h"

#include <run/CfgFamily.h>

namespace orda_engine {

namespace {

/// What the devices are to hold, as values, which the history keeps with the undo.
Selection undoSelection(const RecordedRun &run, const QStringList &devIds)
{
    Selection selection = run.written();
    selection.devIds = devIds;
    for (const QString &devId : devIds) {
        const RecordedDevice device = run.device(devId);
        ObjectsByExchange written; // as if nobody had changed anything since
        for (auto it = device.sent.begin(); it != device.sent.end(); ++it) {
            const auto &exchange = selection.family->exchanges.at(it.key());
            written.insert(it.key(), exchange.withMembers(device.before.value(it.key()), exchange.settings(*it)));
        }
        const DeviceUndo undo = undoOf(*selection.family, device.before, device.sent, written, false);
        selection.ownValues.insert(devId, valuesOf(*selection.family, undo, written));
    }
    return selection;
}

} // namespace

UndoJob::UndoJob(orda_journal::JournalTransport *journal, const RecordedRun &run, const QStringList &devIds, bool force,
                 const WriteOptions &options, QObject *parent)
    : WriteJob(journal, undoSelection(run, devIds), options, parent)
    , m_run(run)
    , m_force(force)
{
}

void UndoJob::describe(orda_journal::RunStart *run) const
{
    run->kind = QStringLiteral("undo");
    run->undoes = m_run.id();
}

orda_batchCfg::ParamsCfgTask *UndoJob::makeTask(const QString &devId)
{
    const RecordedDevice device = m_run.device(devId);
    return new WriteBackTask(*selection().family, devId, m_run.written().valuesOf(devId), device.before, device.sent,
                             m_force, this);
}

QString UndoJob::messageOf(const orda_batchCfg::ParamsCfgTask *task, const QString &message) const
{
    const auto *writeBack = static_cast<const WriteBackTask *>(task);
    const QString left = textOfLeft(writeBack->decided());
    return left.isEmpty() ? message : message + QLatin1String("; ") + left;
}

QVector<MemberDifference> UndoJob::differences(const orda_journal::Settled &settled,
                                               const ObjectsByExchange &held) const
{
    QVector<MemberDifference> found;
    for (const MemberChange &change : settled.changes) {
        const QJsonObject members =
            selection().family->exchanges.at(change.exchange).membersOf(held.value(change.exchange));
        if (members.value(change.member) != change.after)
            found.append({change.exchange, change.member, change.after, members.value(change.member)});
    }
    return found;
}

} // namespace orda_engine
