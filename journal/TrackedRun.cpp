#include "journal/TrackedRun.h"

#include "run/CfgFamily.h"
#include "run/ParamsCfgTask.h"

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/OnvifCode.h>

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace orda_journal {

using orda_batchCfg::CfgExchange;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::ParamsCfgTask;

namespace {

QJsonObject objectIn(const QJsonObject &object, const char *member)
{
    return object.value(QLatin1String(member)).toObject();
}

/// What a device says of its failure. Its own words: made safe to print, and not longer than a line.
QString messageIn(const QJsonObject &answer)
{
    constexpr int longest = 500;
    return vms_sdk::escaped(objectIn(answer, "error").value(QLatin1String("message")).toString().left(longest));
}

} // namespace

QJsonObject paramOfTaken(const CfgExchange &exchange, const QJsonObject &before, const QJsonObject &taken)
{
    const QJsonObject settings = exchange.withMembers(before, taken);
    return exchange.attribute.isEmpty() ? settings : QJsonObject{{exchange.attribute, settings}};
}

TrackedRun::TrackedRun(const RunStart &start, const CfgFamily &family, const QSet<QString> &telling)
    : m_start(start)
    , m_family(family)
    , m_devices(start.devIds.size())
{
    m_placeById.reserve(start.devIds.size());
    m_placeByRequest.reserve(start.devIds.size());
    for (int place = 0; place < m_devices.size(); ++place) {
        m_placeById.insert(start.devIds.at(place), place);
        m_devices[place].exchanges.resize(family.exchanges.size());
        m_devices[place].isTelling = telling.contains(start.devIds.at(place));
    }
}

int TrackedRun::deviceOf(const QString &requestId) const
{
    const int place = m_placeByRequest.value(requestId, -1);
    return place >= 0 && m_devices.at(place).requestId == requestId ? place : -1;
}

TrackedRun::Request TrackedRun::requestOf(const QString &devId, const QString &text)
{
    const int place = placeOf(devId);
    if (place < 0)
        return {};
    if (text == m_lastRead) {
        m_lastRequest.device = place;
        return m_lastRequest;
    }
    const QJsonObject json = QJsonDocument::fromJson(text.toUtf8()).object();
    Request request;
    request.method = json.value(QLatin1String("method")).toString();
    for (int i = 0; i < m_family.exchanges.size(); ++i) {
        const CfgExchange &exchange = m_family.exchanges.at(i);
        request.isWrite = request.method == exchange.setMethod;
        if (!request.isWrite && request.method != exchange.getMethod)
            continue;
        request.device = place;
        request.exchange = i;
        if (request.isWrite) {
            request.param = objectIn(json, "param");
        } else {
            m_lastRead = text;
            m_lastRequest = request;
        }
        return request;
    }
    return {};
}

bool TrackedRun::hasLeft(const Request &request) const
{
    return m_devices.at(request.device).exchanges.at(request.exchange).hasLeft;
}

bool TrackedRun::knowsBefore(const Request &write) const
{
    return m_devices.at(write.device).exchanges.at(write.exchange).hasBefore;
}

ExchangeRow TrackedRun::take(const Request &request, const QString &requestId, const QString &text)
{
    Device &device = m_devices[request.device];
    Exchange &exchange = device.exchanges[request.exchange];
    if (device.requestId != requestId) {
        device.requestId = requestId;
        m_placeByRequest.insert(requestId, request.device);
        for (Exchange &earlier : device.exchanges) {
            earlier.awaitsRead = false;
            earlier.isInDoubt = std::exchange(earlier.awaitsWrite, false) || earlier.isInDoubt;
        }
    }
    if (!request.isWrite) {
        exchange.isReadAnswered = false;
        exchange.awaitsRead = true;
        return {};
    }
    exchange.isWriteAnswered = false;
    exchange.sent = request.param;
    exchange.changes = m_family.changesBy(request.exchange, exchange.before, request.param);
    exchange.isHeld = true;
    ExchangeRow row{
        m_start.devIds.at(request.device), request.exchange, std::exchange(exchange.beforeText, {}), text, {}};
    if (!exchange.taken.isEmpty()) // at an earlier try; whether this one is answered is not known yet
        row.taken = jsonText(supposed(exchange));
    return row;
}

bool TrackedRun::letLeave(int place, int number, const QString &requestId)
{
    Device &device = m_devices[place];
    Exchange &exchange = device.exchanges[number];
    if (!exchange.isHeld || device.requestId != requestId)
        return false;
    exchange.isHeld = false;
    exchange.hasLeft = true;
    exchange.awaitsWrite = true;
    return true;
}

void TrackedRun::dropHeld(int place)
{
    for (Exchange &exchange : m_devices[place].exchanges)
        exchange.isHeld = false;
}

TrackedRun::Answer TrackedRun::takeAnswer(const QString &requestId, const QString &text)
{
    const int place = m_placeByRequest.value(requestId, -1);
    if (place < 0)
        return {};
    Device &device = m_devices[place];
    if (requestId == device.overdueId)
        return {place, -1, true};
    if (requestId != device.requestId)
        return {};
    QJsonParseError fault{};
    const QJsonObject answer = QJsonDocument::fromJson(text.toUtf8(), &fault).object();
    if (fault.error != QJsonParseError::NoError) {
        dropHeld(place); // it ends every task, one that is tried again too
        const Result result{ParamsCfgTask::NotJson, ParamsCfgTask::notJsonText()};
        return {place, -1, false, false, result};
    }
    const QString method = answer.value(QLatin1String("method")).toString();
    const int code = objectIn(answer, "error").value(QLatin1String("errorcode")).toInt(0);
    device.fault = code == 0 ? QString() : messageIn(answer);
    for (int i = 0; i < device.exchanges.size(); ++i) {
        const CfgExchange &family = m_family.exchanges.at(i);
        Exchange &exchange = device.exchanges[i];
        if (method == family.getMethod && !std::exchange(exchange.isReadAnswered, true)) {
            exchange.awaitsRead = false;
            const QJsonObject held = family.heldIn(answer);
            // A device that is tried again and was not written to yet is taken as it is found now.
            if (code == 0 && !exchange.hasLeft) {
                exchange.hasBefore = true;
                exchange.beforeText = text;
                exchange.before = held;
            }
            return {place, i, false, code == 0 && exchange.hasLeft, resultOfRead(device, i, held, code)};
        }
        if (method == family.setMethod && !std::exchange(exchange.isWriteAnswered, true))
            return takeWritten(place, i, answer, code);
    }
    return {};
}

TrackedRun::Answer TrackedRun::takeWritten(int place, int number, const QJsonObject &answer, int code)
{
    Device &device = m_devices[place];
    Exchange &exchange = device.exchanges[number];
    Answer taken{place, number, false, false, resultOfWrite(place, number, code)};
    if (!std::exchange(exchange.awaitsWrite, false))
        return taken;
    const QJsonValue result = answer.value(QLatin1String("result"));
    const bool tells = device.isTelling && result.isObject();
    // A device that tells has what it tells of, whether or not the rest failed.
    exchange.isWritten = exchange.isWritten || (tells ? !result.toObject().isEmpty() : code == 0);
    if (code == 0)
        exchange.isInDoubt = false;
    const QJsonValue unanswered = objectIn(answer, "error").value(QLatin1String("unanswered"));
    const bool isUnanswered = device.isTelling && code != 0 && unanswered.isObject();
    if (isUnanswered)
        exchange.isInDoubt = true;
    if (!tells && !isUnanswered)
        return taken;
    const CfgExchange &family = m_family.exchanges.at(number);
    for (const QJsonValue &part : {result, unanswered}) {
        const QJsonObject members = family.membersOf(part.toObject());
        for (auto member = members.begin(); member != members.end(); ++member)
            exchange.taken.insert(member.key(), member.value());
    }
    exchange.sent = paramOfTaken(family, exchange.before, exchange.taken);
    exchange.changes = m_family.changesBy(number, exchange.before, exchange.sent);
    taken.taken = jsonText(exchange.taken);
    return taken;
}

/// What a device holds when it takes all of a write, or has taken it: by member, without what is as it was before.
QJsonObject TrackedRun::supposed(const Exchange &exchange)
{
    QJsonObject members = exchange.taken;
    for (const orda_batchCfg::MemberChange &change : exchange.changes)
        members.insert(change.member, change.after);
    return members;
}

std::optional<Result> TrackedRun::resultOfRead(const Device &device, int exchange, const QJsonObject &held,
                                               int code) const
{
    const CfgExchange &family = m_family.exchanges.at(exchange);
    if (code != 0)
        return Result{code, m_family.translated(family.getFailure).arg(code)};
    const Exchange &tracked = device.exchanges.at(exchange);
    // The task takes a write that waits for the history for one that has left.
    if (!family.checkWhenBack || !(tracked.hasLeft || tracked.isHeld))
        return {};
    if (family.holds(tracked.sent, held))
        return Result{ParamsCfgTask::Success, ParamsCfgTask::successText()};
    return Result{ParamsCfgTask::NotVerified,
                  m_family.translated(family.setFailure).arg(int(ParamsCfgTask::NotVerified))};
}

std::optional<Result> TrackedRun::resultOfWrite(int device, int exchange, int code) const
{
    if (code != 0)
        return Result{code, m_family.translated(m_family.exchanges.at(exchange).setFailure).arg(code)};
    if (isLastExchange(device, exchange))
        return Result{ParamsCfgTask::Success, ParamsCfgTask::successText()};
    return {};
}

// As ParamsCfgTask goes through them: it ends after an exchange that it was not to run, too, when a device says so.
bool TrackedRun::isLastExchange(int device, int exchange) const
{
    const int flags = m_family.flagsOf(m_start.ownValues.value(m_start.devIds.at(device), m_start.values));
    return m_family.exchangeFrom(exchange + 1, flags) < 0;
}

Result TrackedRun::timeout() const
{
    return {ParamsCfgTask::TimedOut, m_family.translated(m_family.timeoutText)};
}

Result TrackedRun::refusal(const Request &request, int code) const
{
    const CfgExchange &exchange = m_family.exchanges.at(request.exchange);
    return {code, m_family.translated(request.isWrite ? exchange.setFailure : exchange.getFailure).arg(code)};
}

Settled TrackedRun::settle(int place, const Result &result)
{
    const Device &device = m_devices.at(place);
    bool isWritten = false;
    bool isUnanswered = false;
    bool hasChanged = false;
    for (const Exchange &exchange : device.exchanges) {
        isWritten = isWritten || exchange.isWritten;
        isUnanswered = isUnanswered || exchange.awaitsWrite || exchange.isInDoubt;
        hasChanged = hasChanged || (exchange.hasLeft && !exchange.changes.isEmpty());
    }
    if (result.code == ParamsCfgTask::Success)
        return settled(place, hasChanged ? Outcome::Done : Outcome::Unchanged, result);
    if (isUnanswered)
        return settled(place, Outcome::Unknown, result);
    if (isWritten)
        return settled(place, Outcome::PartlyWritten, result);
    return settled(place, result.code == StoppedCode ? Outcome::Stopped : Outcome::Failed, result);
}

Settled TrackedRun::settleNotReached(int place, const QString &reason)
{
    return settled(place, Outcome::NotReached, {0, reason});
}

Settled TrackedRun::settled(int place, Outcome outcome, const Result &result)
{
    dropHeld(place);
    Device &device = m_devices[place];
    device.isSettled = true;
    Settled settled;
    settled.row.devId = m_start.devIds.at(place);
    settled.row.outcome = outcome;
    settled.row.code = result.code;
    settled.row.message = result.message;
    const QString reason = device.fault.isEmpty() ? vms_sdk::onvifCodeText(result.code) : device.fault;
    if (result.code != ParamsCfgTask::Success && !reason.isEmpty())
        settled.row.message = QCoreApplication::translate("orda_journal::TrackedRun", "%1: %2", "failure, reason")
                                  .arg(result.message, reason);
    QStringList written;
    bool isAwaited = false;
    for (int i = 0; i < device.exchanges.size(); ++i) {
        Exchange &exchange = device.exchanges[i];
        isAwaited = isAwaited || exchange.awaitsRead || exchange.awaitsWrite;
        if (exchange.hasLeft) {
            settled.changes += exchange.changes;
            settled.sent.insert(i, exchange.sent);
        }
        if (exchange.isWritten)
            written.append(m_family.exchanges.at(i).setMethod);
        if (result.code == ParamsCfgTask::Success)
            exchange.before = exchange.sent = {}; // it is not tried again
    }
    if (isAwaited)
        device.overdueId = device.requestId;
    if (outcome == Outcome::PartlyWritten) {
        settled.row.message = QCoreApplication::translate("orda_journal::TrackedRun", "%1; written before: %2")
                                  .arg(settled.row.message, written.join(QLatin1String(", ")));
    }
    return settled;
}

} // namespace orda_journal
