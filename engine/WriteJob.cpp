#include "engine/WriteJob.h"

#include "engine/ChangeTexts.h"
#include "engine/Reach.h"
#include "engine/ReadBatch.h"
#include "journal/JournalTransport.h"

#include <run/CfgFamily.h>
#include <run/CfgRun.h>
#include <run/ParamsCfgTask.h>

#include <QUuid>

#include <utility>

namespace orda_engine {

using orda_batchCfg::CfgRun;
using orda_batchCfg::ParamsCfgTask;
using orda_journal::JournalTransport;
using orda_journal::Outcome;
using orda_journal::Settled;

namespace {

bool isFailure(Outcome outcome)
{
    return outcome == Outcome::Failed || outcome == Outcome::Unknown || outcome == Outcome::PartlyWritten
        || outcome == Outcome::Differs;
}

} // namespace

WriteJob::WriteJob(JournalTransport *journal, const Selection &selection, const WriteOptions &options, QObject *parent)
    : QObject(parent)
    , m_journal(journal)
    , m_selection(selection.withoutDuplicates())
    , m_options(options)
    , m_runId(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

WriteJob::~WriteJob()
{
    m_run.reset();
    m_readAgain.reset();
    if (m_hasTurn && m_journal) {
        m_journal->disconnect(this);
        m_journal->end();
    }
}

void WriteJob::start()
{
    QMetaObject::invokeMethod(this, &WriteJob::begin, Qt::QueuedConnection);
}

void WriteJob::begin()
{
    orda_journal::RunStart run;
    run.id = m_runId;
    run.family = m_selection.family->name;
    run.values = m_selection.values;
    run.ownValues = m_selection.ownValues;
    run.devIds = m_selection.devIds;
    describe(&run);
    const QString refusal = m_journal ? m_journal->beginRun(run, JournalTransport::Owner::Engine)
                                      : tr("There is no connection to devices.");
    if (!refusal.isEmpty()) {
        finish(refusal);
        return;
    }
    m_hasTurn = true;
    connect(m_journal, &JournalTransport::signalSettled, this, &WriteJob::takeSettled);
    connect(m_journal, &JournalTransport::signalHistoryFailed, this, &WriteJob::stop);
    connect(m_journal, &QObject::destroyed, this, &WriteJob::loseTransport);
    if (!m_stopped.isEmpty())
        m_journal->stop();
    nextWave();
}

void WriteJob::nextWave()
{
    if (m_isOver)
        return;
    const int left = m_selection.devIds.size() - m_begun;
    if (left == 0 || !m_stopped.isEmpty()) {
        settleRest();
        return;
    }
    m_waveDevices = m_options.waves.sizeOf(m_wave, m_selection.devIds.size(), left);
    m_waveFailures = 0;
    m_attempt = 0;
    emit signalWaveBegan(m_wave, m_waveDevices);
    ++m_wave;
    const QStringList devIds = m_selection.devIds.mid(m_begun, m_waveDevices);
    m_begun += m_waveDevices;
    QStringList reached;
    for (const QString &devId : devIds) {
        const Reach reach = reachOf(devId);
        if (reach.canBeWritten)
            reached.append(devId);
        else
            m_journal->settleNotReached(devId, reach.text);
        if (m_isOver)
            return; // the connection went while this was told
    }
    tryDevices(reached);
}

void WriteJob::tryDevices(const QStringList &devIds)
{
    if (devIds.isEmpty()) {
        QMetaObject::invokeMethod(this, &WriteJob::endAttempt, Qt::QueuedConnection);
        return;
    }
    m_run = std::make_unique<CfgRun>(devIds.size());
    connect(m_run.get(), &CfgRun::signalResult, this, &WriteJob::takeResult);
    m_run->start(devIds, [this](const QString &devId) {
        ParamsCfgTask *task = makeTask(devId);
        m_tasks.insert(devId, task);
        return task;
    });
}

void WriteJob::takeResult(const QString &devId, const QString &message, int code)
{
    const ParamsCfgTask *task = m_tasks.take(devId);
    const bool isRefused = code == orda_journal::StoppedCode || code == orda_journal::NotRecordedCode;
    if (code != ParamsCfgTask::Success && !isRefused && m_attempt < m_options.retries && m_stopped.isEmpty())
        m_failed.append({devId, {code, message}});
    else if (m_journal)
        m_journal->settle(devId, code == ParamsCfgTask::Success ? messageOf(task, message) : message, code);
    if (m_run && m_run->isOver())
        QMetaObject::invokeMethod(this, &WriteJob::endAttempt, Qt::QueuedConnection);
}

void WriteJob::endAttempt()
{
    if (m_isOver)
        return;
    m_run.reset();
    QStringList again;
    const auto failed = std::exchange(m_failed, {});
    for (const auto &[devId, result] : failed) {
        if (m_stopped.isEmpty() && reachOf(devId).canBeWritten)
            again.append(devId);
        else if (m_journal)
            m_journal->settle(devId, result.message, result.code);
    }
    if (m_isOver)
        return; // the connection went while this was told
    if (again.isEmpty()) {
        verifyWave();
        return;
    }
    ++m_attempt;
    tryDevices(again);
}

void WriteJob::takeSettled(const Settled &settled)
{
    const Outcome outcome = *settled.row.outcome;
    const bool isWritten = !settled.sent.isEmpty(); // an undo may find nothing to write
    if (m_options.verify && isWritten && (outcome == Outcome::Done || outcome == Outcome::Unchanged)) {
        m_written.append(settled.row.devId);
        m_settled.insert(settled.row.devId, settled);
    } else {
        report(settled);
    }
}

void WriteJob::verifyWave()
{
    const QStringList written = std::exchange(m_written, {});
    if (written.isEmpty()) {
        nextWave();
        return;
    }
    m_readAgain = std::make_unique<ReadBatch>(m_selection);
    connect(m_readAgain.get(), &ReadBatch::signalRead, this, &WriteJob::takeReading);
    connect(m_readAgain.get(), &ReadBatch::signalFinished, this, [this] {
        m_readAgain.reset();
        nextWave();
    });
    m_readAgain->start(written, writtenFlags());
}

// What is read again is what was written: the values of an undo may ask for fewer exchanges.
QHash<QString, int> WriteJob::writtenFlags() const
{
    QHash<QString, int> flags;
    for (auto settled = m_settled.begin(); settled != m_settled.end(); ++settled)
        for (auto param = settled->sent.begin(); param != settled->sent.end(); ++param)
            flags[settled.key()] |= m_selection.family->exchanges.at(param.key()).flag;
    return flags;
}

void WriteJob::takeReading(const QString &devId, int code, const QString &message, const ObjectsByExchange &held)
{
    Settled settled = m_settled.take(devId);
    if (code != ParamsCfgTask::Success) {
        settled.row.message = tr("%1; not verified: %2").arg(settled.row.message, message);
    } else {
        const QVector<MemberDifference> found = differences(settled, held);
        if (!found.isEmpty()) {
            settled.row.outcome = Outcome::Differs;
            settled.row.message = tr("read again, it is not as it was written: %1").arg(textOf(found));
            if (m_journal)
                m_journal->noteDiffers(settled.row);
        }
    }
    report(settled);
}

void WriteJob::report(const Settled &settled)
{
    ++m_reported;
    emit signalOutcome(settled);
    emit signalProgress(m_reported, m_selection.devIds.size());
    if (!isFailure(*settled.row.outcome))
        return;
    ++m_waveFailures;
    if (m_waveFailures * 100 > m_options.maxFailPercentage * m_waveDevices)
        stop(tr("more than %1 % of the devices failed").arg(m_options.maxFailPercentage));
}

// The SDK forgets all requests with the transport, which has settled all devices by then.
void WriteJob::loseTransport()
{
    for (const QString &devId : m_selection.devIds)
        if (m_settled.contains(devId))
            takeReading(devId, orda_journal::StoppedCode, tr("the connection has ended"), {});
    finish({});
}

void WriteJob::cancel()
{
    stop(tr("stopped"));
}

void WriteJob::stop(const QString &why)
{
    if (m_isOver || !m_stopped.isEmpty())
        return;
    m_stopped = why;
    if (m_hasTurn && m_journal)
        m_journal->stop();
    emit signalStopped(why);
}

void WriteJob::settleRest()
{
    const QStringList rest = m_selection.devIds.mid(m_begun);
    for (const QString &devId : rest)
        if (m_journal)
            m_journal->settle(devId, tr("not begun: %1").arg(m_stopped), orda_journal::StoppedCode);
    finish({});
}

void WriteJob::finish(const QString &error)
{
    if (std::exchange(m_isOver, true))
        return;
    m_run.reset();
    qDeleteAll(std::exchange(m_tasks, {})); // they must not send anything over the next connection
    if (m_readAgain)
        m_readAgain->cancel();
    if (std::exchange(m_hasTurn, false) && m_journal) {
        m_journal->disconnect(this);
        m_journal->end();
    }
    emit signalFinished(error);
}

} // namespace orda_engine
