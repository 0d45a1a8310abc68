#include "engine/ApplyJob.h"

#include <run/CfgFamily.h>

namespace orda_engine {

ApplyJob::ApplyJob(orda_journal::JournalTransport *journal, const Selection &selection, const WriteOptions &options,
                   QObject *parent)
    : WriteJob(journal, selection, options, parent)
{
}

void ApplyJob::describe(orda_journal::RunStart *run) const
{
    run->kind = QStringLiteral("apply");
}

orda_batchCfg::ParamsCfgTask *ApplyJob::makeTask(const QString &devId)
{
    return selection().family->createTask(devId, selection().valuesOf(devId), selection().flagsOf(devId), this);
}

QString ApplyJob::messageOf(const orda_batchCfg::ParamsCfgTask *, const QString &message) const
{
    return message;
}

QVector<MemberDifference> ApplyJob::differences(const orda_journal::Settled &settled,
                                                const ObjectsByExchange &held) const
{
    return selection().differencesOf(settled.row.devId, settled.sent, held);
}

} // namespace orda_engine
