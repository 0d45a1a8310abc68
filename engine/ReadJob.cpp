#include "engine/ReadJob.h"

#include "engine/ReadBatch.h"
#include "journal/JournalTransport.h"

#include <utility>

namespace orda_engine {

ReadJob::ReadJob(orda_journal::JournalTransport *journal, const Selection &selection, QObject *parent)
    : QObject(parent)
    , m_journal(journal)
    , m_selection(selection.withoutDuplicates())
    , m_unreported(m_selection.devIds.begin(), m_selection.devIds.end())
{
}

ReadJob::~ReadJob()
{
    m_batch.reset();
    giveTurnBack();
}

void ReadJob::start()
{
    QMetaObject::invokeMethod(this, &ReadJob::begin, Qt::QueuedConnection);
}

void ReadJob::begin()
{
    if (m_isOver)
        return; // cancelled already
    const QString refusal = m_journal ? m_journal->beginReading() : tr("There is no connection to devices.");
    if (!refusal.isEmpty()) {
        finish(refusal);
        return;
    }
    m_hasTurn = true;
    // The SDK forgets all requests with the transport.
    connect(m_journal, &QObject::destroyed, this, &ReadJob::cancel);
    QStringList reached;
    for (const QString &devId : m_selection.devIds) {
        const Reach reach = reachOf(devId);
        if (reach.canBeWritten)
            reached.append(devId);
        else
            report({devId, reach, 0, {}});
        if (m_isOver)
            return;
    }
    if (reached.isEmpty()) {
        finish({});
        return;
    }
    m_batch = std::make_unique<ReadBatch>(m_selection);
    connect(m_batch.get(), &ReadBatch::signalRead, this,
            [this](const QString &devId, int code, const QString &message, const ObjectsByExchange &held) {
                report({devId, {true}, code, message, held});
            });
    connect(m_batch.get(), &ReadBatch::signalFinished, this, [this] { finish({}); });
    m_batch->start(reached);
}

void ReadJob::report(const DeviceReading &reading)
{
    m_unreported.remove(reading.devId);
    emit signalRead(reading);
    if (!m_isOver) // what heard of the device may have cancelled the job
        emit signalProgress(m_selection.devIds.size() - m_unreported.size(), m_selection.devIds.size());
}

void ReadJob::cancel()
{
    if (m_isOver || std::exchange(m_isCancelled, true))
        return;
    if (m_batch)
        m_batch->cancel();
    const QSet<QString> unreported = m_unreported;
    for (const QString &devId : m_selection.devIds)
        if (unreported.contains(devId))
            report({devId, {true}, orda_journal::StoppedCode, tr("stopped")});
    finish({});
}

void ReadJob::finish(const QString &error)
{
    if (std::exchange(m_isOver, true))
        return;
    giveTurnBack();
    emit signalFinished(error);
}

void ReadJob::giveTurnBack()
{
    if (std::exchange(m_hasTurn, false) && m_journal)
        m_journal->end();
}

} // namespace orda_engine
