#include "journal/HistoryWriter.h"

#include "journal/RunRecorder.h"

#include <orda_data/DevsMgrData.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>
#include <QUuid>
#include <QWaitCondition>

#include <utility>

namespace orda_journal {

namespace {

constexpr std::chrono::seconds patience{10}; // with a disk that does not answer, when the program wants to end

} // namespace

class HistoryWriter::Thread : public QThread
{
public:
    Thread(const HistoryOptions &options, HistoryWriter *writer)
        : m_options(options)
        , m_writer(writer)
    {
    }

    quint64 append(const QString &runId, decltype(RunEntry::what) what)
    {
        const QMutexLocker lock(&m_mutex);
        m_queue.push_back({++m_ticket, runId, std::move(what)});
        if (m_queue.size() == 1)
            m_hasWork.wakeOne();
        return m_ticket;
    }

    /// Lets the thread write what it has. @return false when it did not end in time; it must not be deleted then
    bool end()
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_isEnding = true;
            m_hasWork.wakeOne();
            m_isToEnd.wakeOne();
        }
        if (wait(QDeadlineTimer(patience)))
            return true;
        const QMutexLocker lock(&m_mutex);
        m_writer = nullptr;
        m_queue.clear();
        return false;
    }

protected:
    void run() override
    {
        RunRecorder recorder(
            m_options, {[this](quint64 ticket) { report([ticket](auto *to) { emit to->signalCommitted(ticket); }); },
                        [this](const QString &why, const QString &runId) {
                            report([why, runId](auto *to) { emit to->signalFailed(why, runId); });
                        },
                        [this](const QString &what) { report([what](auto *to) { emit to->signalSetAside(what); }); }});
        for (RunEntries entries; takeQueued(&entries); entries.clear()) {
            recorder.write(entries);
            QMutexLocker lock(&m_mutex);
            if (!m_isEnding)
                m_isToEnd.wait(&m_mutex, QDeadlineTimer(m_options.groupTime));
        }
    }

private:
    // Waits for something to write. @return false when the thread is to end and nothing is left
    bool takeQueued(RunEntries *entries)
    {
        const QMutexLocker lock(&m_mutex);
        while (m_queue.empty() && !m_isEnding)
            m_hasWork.wait(&m_mutex);
        entries->swap(m_queue);
        return !entries->empty();
    }

    template <typename Emit>
    void report(Emit emitTo)
    {
        const QMutexLocker lock(&m_mutex);
        HistoryWriter *const writer = m_writer;
        if (writer)
            QMetaObject::invokeMethod(
                writer, [writer, emitTo] { emitTo(writer); }, Qt::QueuedConnection);
    }

    const HistoryOptions m_options;
    QMutex m_mutex; // for all that follows
    QWaitCondition m_hasWork, m_isToEnd;
    RunEntries m_queue;
    quint64 m_ticket = 0;
    bool m_isEnding = false;
    HistoryWriter *m_writer;
};

HistoryWriter::HistoryWriter(const HistoryOptions &options, QObject *parent)
    : QObject(parent)
    , m_thread(std::make_unique<Thread>(options, this))
{
    m_thread->start();
}

HistoryWriter::~HistoryWriter()
{
    if (!m_thread->end()) {
        const Thread *const hanging = m_thread.release(); // in a call of the system, and still uses what it has
        Q_UNUSED(hanging)
    }
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); // what became of the last rows
}

quint64 HistoryWriter::beginRun(const RunStart &run)
{
    Q_ASSERT(!QUuid::fromString(run.id).isNull());
    RunBegin begin{run, {}, {}, QDateTime::currentMSecsSinceEpoch()};
    begin.program = QStringLiteral("%1 %2")
                        .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion())
                        .trimmed();
    begin.devices.reserve(run.devIds.size());
    for (const QString &devId : run.devIds) {
        const vms_sdk::DevInfo info = orda_data::DevsMgrData::instance().getDevInfoById(devId);
        begin.devices.append({devId, {}, 0, {}, {}, info.name, info.serialNumber, info.ip, run.ownValues.value(devId)});
    }
    return m_thread->append(run.id, std::move(begin));
}

quint64 HistoryWriter::putExchange(const QString &runId, const ExchangeRow &row)
{
    return m_thread->append(runId, row);
}

quint64 HistoryWriter::putDevice(const QString &runId, const DeviceRow &row)
{
    return m_thread->append(runId, row);
}

quint64 HistoryWriter::endRun(const QString &runId)
{
    return m_thread->append(runId, RunEnd{QDateTime::currentMSecsSinceEpoch()});
}

} // namespace orda_journal
