#pragma once

#include "engine/WriteJob.h"

namespace orda_engine {

/// Sets parameters of many devices: by the tasks with which the pages set them, and nothing else.
class ApplyJob : public WriteJob
{
    Q_OBJECT

public:
    /// @param selection with values for each device
    ApplyJob(orda_journal::JournalTransport *journal, const Selection &selection, const WriteOptions &options = {},
             QObject *parent = nullptr);

private:
    void describe(orda_journal::RunStart *run) const override;
    orda_batchCfg::ParamsCfgTask *makeTask(const QString &devId) override;
    QString messageOf(const orda_batchCfg::ParamsCfgTask *task, const QString &message) const override;
    QVector<MemberDifference> differences(const orda_journal::Settled &settled,
                                          const ObjectsByExchange &held) const override;
};

} // namespace orda_engine
