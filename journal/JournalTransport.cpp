#include "journal/JournalTransport.h"

#include "families/Families.h"
#include "journal/HistoryWriter.h"
#include "journal/Logging.h"
#include "run/CfgRun.h"

#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ClientSignals.h>

#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace orda_journal {

JournalTransport::JournalTransport(std::unique_ptr<vms_sdk::DeviceTransport> transport,
                                   std::unique_ptr<HistoryWriter> history)
    : m_transport(std::move(transport))
    , m_history(std::move(history))
{
    // Direct, on the thread that raises them: whoever listens to this transport queues them.
    connect(m_transport.get(), &DeviceTransport::answered, this, &DeviceTransport::answered, Qt::DirectConnection);
    connect(m_transport.get(), &DeviceTransport::devStatusChanged, this, &DeviceTransport::devStatusChanged,
            Qt::DirectConnection);
    connect(m_transport.get(), &DeviceTransport::linkTroubled, this, &DeviceTransport::linkTroubled,
            Qt::DirectConnection);
    connect(m_transport.get(), &DeviceTransport::identified, this, &DeviceTransport::identified, Qt::DirectConnection);
    connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalRequestTimeout, this,
            &JournalTransport::handleTimeout);
    if (m_history) {
        connect(m_history.get(), &HistoryWriter::signalCommitted, this, &JournalTransport::historyCommitted);
        connect(m_history.get(), &HistoryWriter::signalFailed, this, &JournalTransport::historyFailed);
        connect(m_history.get(), &HistoryWriter::signalSetAside, this, &JournalTransport::signalHistorySetAside);
    }
}

JournalTransport::~JournalTransport()
{
    m_transport.reset(); // nothing is answered any more
    end();
    m_history.reset(); // now, as it may still tell that it cannot be written
}

void JournalTransport::setRequestTimeout(std::chrono::milliseconds timeout)
{
    m_transport->setRequestTimeout(timeout);
}

void JournalTransport::timedOut(const QString &requestId)
{
    m_transport->timedOut(requestId);
}

QString JournalTransport::takeTurn(Turn turn, Owner owner)
{
    // A page's run counts itself when it is announced; that of a page that nobody watches is not announced here.
    if (m_turn == Turn::Reading)
        return tr("Devices are being read. Please wait until that has ended, or stop it.");
    if (isBusy() || (owner == Owner::Engine && orda_batchCfg::CfgRun::isUnderWay()))
        return tr("A configuration is under way. Please wait until it has ended.");
    m_run.reset(); // its late answers are not told from what is read now
    m_isStopped = false;
    m_turn = turn;
    m_owner = owner;
    return {};
}

QString JournalTransport::beginReading()
{
    return takeTurn(Turn::Reading, Owner::Engine);
}

QString JournalTransport::beginRun(const RunStart &run, Owner owner)
{
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(run.family);
    if (!family)
        return tr("There are no parameters called \"%1\".").arg(run.family);
    QString refusal = takeTurn(Turn::Running, owner);
    if (!refusal.isEmpty())
        return refusal;
    m_hasFailed = false;
    QSet<QString> telling;
    for (const QString &devId : run.devIds)
        if (orda_data::DevsMgrData::instance().getDevInfoById(devId).protocol == vms_sdk::DevProtocol::Onvif)
            telling.insert(devId);
    m_run = std::make_unique<TrackedRun>(run, *family, telling);
    if (m_history)
        m_history->beginRun(run);
    qCDebug(logJournal) << run.id << run.kind << run.family << "begins:" << run.devIds.size() << "devices";
    emit signalRunBegan(run);
    return {};
}

void JournalTransport::end()
{
    const Turn turn = std::exchange(m_turn, Turn::Free);
    if (turn != Turn::Running)
        return;
    m_held.clear();
    for (int device = 0; device < m_run->deviceCount(); ++device)
        if (!m_run->isSettled(device))
            record(m_run->settle(device, {StoppedCode, tr("the run ended before this device had its result")}));
    const QString id = m_run->start().id;
    if (!m_history)
        QMetaObject::invokeMethod(
            this, [this, id] { emit signalRunRecorded(id); }, Qt::QueuedConnection);
    else if (!m_hasFailed) // of a run that is lost nothing is written any more
        m_ended.push_back({m_history->endRun(id), id});
    qCDebug(logJournal) << id << "ended";
    emit signalRunEnded(id);
}

void JournalTransport::send(const QString &requestId, const QString &devId, const QString &text)
{
    const auto request = m_turn == Turn::Running ? m_run->requestOf(devId, text) : TrackedRun::Request();
    if (request.device < 0) { // nothing of a run
        m_transport->send(requestId, devId, text);
        return;
    }
    const bool isEnding = m_isStopped || m_hasFailed;
    if (isEnding && (request.isWrite || !m_run->hasLeft(request))) { // what is asked about a write that has left passes
        refuse(request, requestId);
    } else if (request.isWrite && !m_run->knowsBefore(request)) {
        qCWarning(logJournal) << devId << request.method << "does not leave: the device was not read before";
        refuse(request, requestId);
    } else if (request.isWrite) {
        hold(request, requestId, text);
    } else {
        m_run->take(request, requestId, text);
        m_transport->send(requestId, devId, text);
    }
}

void JournalTransport::hold(const TrackedRun::Request &request, const QString &requestId, const QString &text)
{
    const ExchangeRow row = m_run->take(request, requestId, text);
    Held write{0, request.device, request.exchange, requestId, row.devId, request.method, text};
    if (!m_history) {
        letLeave(write);
        return;
    }
    write.ticket = m_history->putExchange(m_run->start().id, row);
    m_held.push_back(write);
}

void JournalTransport::letLeaveUpTo(quint64 ticket)
{
    while (!m_held.empty() && m_held.front().ticket <= ticket) {
        const Held write = m_held.front();
        m_held.pop_front();
        letLeave(write);
    }
}

void JournalTransport::letLeave(const Held &write)
{
    if (m_run->letLeave(write.device, write.exchange, write.requestId))
        m_transport->send(write.requestId, write.devId, write.text);
    else
        qCDebug(logJournal) << write.requestId << write.devId << write.method << "does not leave: nobody awaits it";
}

void JournalTransport::refuse(const TrackedRun::Request &request, const QString &requestId)
{
    const int code = m_isStopped && !m_hasFailed ? StoppedCode : NotRecordedCode;
    answerInstead(requestId, request.method, code);
    if (m_owner == Owner::Page && !m_run->isSettled(request.device))
        record(m_run->settle(request.device, m_run->refusal(request, code)));
}

void JournalTransport::refuseHeld()
{
    for (const Held &write : std::exchange(m_held, {})) {
        m_run->dropHeld(write.device);
        refuse({write.device, write.exchange, true, write.method}, write.requestId);
    }
}

void JournalTransport::answerInstead(const QString &requestId, const QString &method, int code)
{
    const QJsonObject error{{QStringLiteral("errorcode"), code}};
    const QJsonObject answer{{QStringLiteral("method"), method}, {QStringLiteral("error"), error}};
    const QString text = QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
    qCDebug(logJournal) << requestId << method << "does not leave:" << code;
    m_ownAnswers.insert(requestId, text);
    emit answered(requestId, text);
}

void JournalTransport::passedOn(const QString &requestId, const QString &text)
{
    if (!m_ownAnswers.isEmpty() && m_ownAnswers.remove(requestId, text) > 0)
        return;
    m_transport->passedOn(requestId, text);
    if (!m_run)
        return;
    const TrackedRun::Answer answer = m_run->takeAnswer(requestId, text);
    if (answer.device < 0)
        return;
    const QString devId = m_run->start().devIds.at(answer.device);
    if (m_history && answer.isLate) {
        DeviceRow row;
        row.devId = devId;
        row.late = text;
        m_history->putDevice(m_run->start().id, row);
    }
    if (m_history && answer.isAfter)
        m_history->putExchange(m_run->start().id, {devId, answer.exchange, {}, {}, text});
    if (m_history && !answer.taken.isEmpty())
        m_history->putExchange(m_run->start().id, {devId, answer.exchange, {}, {}, {}, answer.taken});
    if (answer.result && m_owner == Owner::Page && !m_run->isSettled(answer.device))
        record(m_run->settle(answer.device, *answer.result));
}

void JournalTransport::handleTimeout(const QString &requestId)
{
    const int device = m_turn == Turn::Running ? m_run->deviceOf(requestId) : -1;
    if (device < 0)
        return;
    m_run->dropHeld(device);
    if (m_owner == Owner::Page && !m_run->isSettled(device))
        record(m_run->settle(device, m_run->timeout()));
}

void JournalTransport::stop()
{
    if (m_turn != Turn::Running || m_isStopped)
        return;
    qCDebug(logJournal) << "stopped";
    m_isStopped = true;
    refuseHeld();
}

void JournalTransport::historyCommitted(quint64 ticket)
{
    letLeaveUpTo(ticket);
    while (!m_ended.empty() && m_ended.front().ticket <= ticket) {
        const QString runId = m_ended.front().runId;
        m_ended.pop_front();
        emit signalRunRecorded(runId);
    }
}

void JournalTransport::historyFailed(const QString &why, const QString &runId)
{
    qCWarning(logJournal).noquote() << why;
    m_ended.erase(
        std::remove_if(m_ended.begin(), m_ended.end(), [&runId](const Ended &ended) { return ended.runId == runId; }),
        m_ended.end());
    if (m_run && m_run->start().id == runId) { // and not one that has ended before
        m_hasFailed = true;
        refuseHeld();
    }
    emit signalHistoryFailed(why);
}

void JournalTransport::settle(const QString &devId, const QString &message, int code)
{
    const int device = m_run->placeOf(devId);
    if (!m_run->isSettled(device))
        record(m_run->settle(device, {code, message}));
}

void JournalTransport::settleNotReached(const QString &devId, const QString &reason)
{
    record(m_run->settleNotReached(m_run->placeOf(devId), reason));
}

void JournalTransport::noteDiffers(const DeviceRow &row)
{
    if (m_history)
        m_history->putDevice(m_run->start().id, row);
}

void JournalTransport::record(const Settled &settled)
{
    if (m_history)
        m_history->putDevice(m_run->start().id, settled.row);
    emit signalSettled(settled);
}

} // namespace orda_journal
