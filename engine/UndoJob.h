#pragma once

#include "engine/DeviceUndo.h"
#include "engine/RecordedRun.h"
#include "engine/WriteJob.h"

namespace orda_engine {

/// Takes back what a run has written: on each device the members that the run has changed and that nobody has changed
/// since. What is left stands in the device's message.
class UndoJob : public WriteJob
{
    Q_OBJECT

public:
    /// @param devIds of run.written(), those to take it back from
    /// @param force writes over what was changed since, too
    UndoJob(orda_journal::JournalTransport *journal, const RecordedRun &run, const QStringList &devIds, bool force,
            const WriteOptions &options = {}, QObject *parent = nullptr);

private:
    void describe(orda_journal::RunStart *run) const override;
    orda_batchCfg::ParamsCfgTask *makeTask(const QString &devId) override;
    QString messageOf(const orda_batchCfg::ParamsCfgTask *task, const QString &message) const override;
    QVector<MemberDifference> differences(const orda_journal::Settled &settled,
                                          const ObjectsByExchange &held) const override;

    const RecordedRun m_run;
    const bool m_force;
};

} // namespace orda_engine
