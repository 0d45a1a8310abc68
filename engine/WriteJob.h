#pragma once

#include "engine/DevicePlan.h"
#include "engine/Selection.h"
#include "engine/Waves.h"
#include "journal/TrackedRun.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace orda_batchCfg {
class CfgRun;
class ParamsCfgTask;
} // namespace orda_batchCfg
namespace orda_journal {
class JournalTransport;
}

namespace orda_engine {

class ReadBatch;

struct WriteOptions
{
    Waves waves = {};
    /// More failures than this among the devices of a wave, in per cent of these, stop the run at once. Devices that
    /// were not reached are no failures.
    int maxFailPercentage = 100;
    int retries = 0; ///< how often a device that failed is tried again, after the others of its wave
    bool verify = false; ///< reads each wave again and compares
};

/// Writes to many devices, wave by wave, and accounts for each of them once; the history has it all. What it writes is
/// its subclass's affair. Takes the turn: while it goes on, no other run begins. Used once, and never deleted from
/// inside its signals (deleteLater() will do). GUI thread; a QCoreApplication is enough.
class WriteJob : public QObject
{
    Q_OBJECT

public:
    /// A run that is under way is stopped and not awaited.
    ~WriteJob() override;

    /// Returns at once; all signals come from the event loop.
    void start();
    /// What has not left yet does not leave; what has left is awaited. The devices left over end as stopped.
    void cancel();

    QString runId() const { return m_runId; }
    const Selection &selection() const { return m_selection; }

signals:
    /// @param wave counted from 0
    void signalWaveBegan(int wave, int devices);
    /// Once for each device, with its outcome.
    void signalOutcome(const orda_journal::Settled &settled);
    void signalProgress(int finished, int total);
    /// Nothing more is written. @param why for the user
    void signalStopped(const QString &why);
    /// Last, and once. @param error why the job could not begin, for the user; empty when it has
    void signalFinished(const QString &error);

protected:
    WriteJob(orda_journal::JournalTransport *journal, const Selection &selection, const WriteOptions &options,
             QObject *parent);

    /// The run as the history is to have it; id, family, values and devices are there.
    virtual void describe(orda_journal::RunStart *run) const = 0;
    /// The task of one device, which has sent its first request when it is returned. The job owns it.
    virtual orda_batchCfg::ParamsCfgTask *makeTask(const QString &devId) = 0;
    /// Called with the result of a task that succeeded. @return the message for the user
    virtual QString messageOf(const orda_batchCfg::ParamsCfgTask *task, const QString &message) const = 0;
    /// What of the device is not as it was written.
    /// @param held what it holds now
    virtual QVector<MemberDifference> differences(const orda_journal::Settled &settled,
                                                  const ObjectsByExchange &held) const = 0;

private:
    void begin();
    void nextWave();
    void tryDevices(const QStringList &devIds);
    void takeResult(const QString &devId, const QString &message, int code);
    void endAttempt();
    void takeSettled(const orda_journal::Settled &settled);
    void verifyWave();
    QHash<QString, int> writtenFlags() const;
    void takeReading(const QString &devId, int code, const QString &message, const ObjectsByExchange &held);
    void report(const orda_journal::Settled &settled);
    void loseTransport();
    void stop(const QString &why);
    void settleRest();
    void finish(const QString &error);

    QPointer<orda_journal::JournalTransport> m_journal; // the SDK owns it
    const Selection m_selection;
    const WriteOptions m_options;
    const QString m_runId;
    QHash<QString, orda_batchCfg::ParamsCfgTask *> m_tasks; // of the attempt, by device id
    std::unique_ptr<orda_batchCfg::CfgRun> m_run; // of the attempt; after the tasks, which it hears
    std::unique_ptr<ReadBatch> m_readAgain;
    int m_begun = 0; // devices of the waves that have begun
    int m_wave = 0;
    int m_waveDevices = 0;
    int m_waveFailures = 0;
    int m_attempt = 0;
    QVector<QPair<QString, orda_journal::Result>> m_failed; // of the attempt, to be tried again
    QStringList m_written; // of the wave, to be verified
    QHash<QString, orda_journal::Settled> m_settled; // their outcomes, until they are reported
    int m_reported = 0;
    QString m_stopped; // why
    bool m_hasTurn = false;
    bool m_isOver = false;
};

} // namespace orda_engine
