#include "run/ParamsCfgTask.h"

#include "run/Logging.h"
#include "run/TaskRouter.h"

#include <orda_base/BaseTools.h>
#include <vms_client_sdk/Requests.h>

#include <QJsonDocument>
#include <QTimer>
#include <QUuid>

#include <utility>

namespace orda_batchCfg {

namespace {
QString requestText(const QString &method, const std::optional<QJsonObject> &param)
{
    QJsonObject request{{QStringLiteral("method"), method}, {QStringLiteral("level"), QStringLiteral("Operator")}};
    if (param)
        request.insert(QStringLiteral("param"), *param);
    return QString::fromUtf8(QJsonDocument(request).toJson());
}

/// 0, success, for everything that is no whole number in the range of an int: so the protocol has it.
int errorCodeOf(const QJsonObject &answer)
{
    return answer.value(QLatin1String("error")).toObject().value(QLatin1String("errorcode")).toInt(0);
}

} // namespace

ParamsCfgTask::ParamsCfgTask(const QString &devId, const QJsonObject &values, const QVector<CfgExchange> &exchanges,
                             const QString &timeoutText, QObject *parent, int flags)
    : QObject(parent)
    , m_requestId(QUuid::createUuid().toString())
    , m_devId(devId)
    , m_flags(flags)
    , m_values(values)
    , m_exchanges(exchanges)
    , m_timeoutText(timeoutText)
{
}

ParamsCfgTask::~ParamsCfgTask()
{
    if (!m_finished)
        TaskRouter::instance().remove(this);
}

void ParamsCfgTask::start()
{
    const int first = selectedFrom(0);
    sendRead(first >= 0 ? first : m_exchanges.size() - 1);
    TaskRouter::instance().add(this);
}

int ParamsCfgTask::selectedFrom(int from) const
{
    for (int i = from; i < m_exchanges.size(); ++i) {
        const int flag = m_exchanges.at(i).flag;
        if (flag == 0 || (m_flags & flag) != 0)
            return i;
    }
    return -1;
}

void ParamsCfgTask::sendRead(int exchange)
{
    m_answered &= ~answeredBit(exchange, true);
    // All devices of a run are asked the same: the text is made for the first of them.
    static QString method, text;
    static std::optional<QJsonObject> param;
    const CfgExchange &e = m_exchanges.at(exchange);
    if (method != e.getMethod || param != e.getParam) {
        method = e.getMethod;
        param = e.getParam;
        text = requestText(method, param);
    }
    send(e.getMethod, text);
}

void ParamsCfgTask::sendWrite(int exchange)
{
    m_written = exchange;
    m_answered &= ~answeredBit(exchange, false);
    const CfgExchange &e = m_exchanges.at(exchange);
    send(e.setMethod, requestText(e.setMethod, e.setParam(m_values, std::exchange(m_devParams, {}))));
}

void ParamsCfgTask::send(const QString &method, const QString &text)
{
    qCDebug(logRun) << m_requestId << m_devId << "sends" << method;
    vms_sdk::common_req(m_requestId, m_devId, text);
}

void ParamsCfgTask::handleAnswer(const QString &text)
{
    QJsonParseError parseError{};
    const QJsonObject answer = QJsonDocument::fromJson(text.toUtf8(), &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        finish(tr("Failed to parse json data"), NotJson);
        return;
    }
    const QString method = answer.value(QLatin1String("method")).toString();
    const int errorCode = errorCodeOf(answer);

    for (int i = 0; i < m_exchanges.size(); ++i) {
        const CfgExchange &exchange = m_exchanges.at(i);
        const bool isRead = method == exchange.getMethod;
        if (!isRead && method != exchange.setMethod)
            continue;
        const quint32 answered = answeredBit(i, isRead);
        if ((m_answered & answered) != 0) {
            qCDebug(logRun) << m_requestId << m_devId << "second answer to one" << method << "dropped";
            return;
        }
        m_answered |= answered;
        qCDebug(logRun) << m_requestId << m_devId << "answers" << method << errorCode;
        if (isRead)
            handleRead(i, answer.value(QLatin1String("result")).toObject(), errorCode);
        else
            handleWritten(i, errorCode);
        return;
    }
    qCDebug(logRun) << m_requestId << m_devId << "answer to a method that is none of ours dropped:" << method;
}

void ParamsCfgTask::handleRead(int exchange, const QJsonObject &result, int errorCode)
{
    const CfgExchange &e = m_exchanges.at(exchange);
    if (errorCode != 0) {
        finish(e.getFailure.arg(errorCode), errorCode);
        return;
    }
    m_devParams = e.resultKey.isEmpty() ? result : result.value(e.resultKey).toObject();
    if (e.checkWhenBack && m_written == exchange)
        checkSettings(exchange);
    else
        TaskRouter::instance().callLater(this, &ParamsCfgTask::sendWrite, exchange);
}

void ParamsCfgTask::handleWritten(int exchange, int errorCode)
{
    if (errorCode != 0) {
        finish(m_exchanges.at(exchange).setFailure.arg(errorCode), errorCode);
        return;
    }
    const int next = selectedFrom(exchange + 1);
    if (next >= 0)
        TaskRouter::instance().callLater(this, &ParamsCfgTask::sendRead, next);
    else
        finish(tr("success"), Success);
}

void ParamsCfgTask::checkSettings(int exchange)
{
    for (auto it = m_values.constBegin(); it != m_values.constEnd(); ++it) {
        if (it.value() != m_devParams.value(it.key())) {
            finish(m_exchanges.at(exchange).setFailure.arg(int(NotVerified)), NotVerified);
            return;
        }
    }
    finish(tr("success"), Success);
}

void ParamsCfgTask::handleTimeout()
{
    finish(m_timeoutText, TimedOut);
}

void ParamsCfgTask::handleDevStatus(vms_sdk::DevStatus status)
{
    if (m_written >= 0 && m_exchanges.at(m_written).checkWhenBack
        && orda_base::BaseTools::instance().isDevOnline(status))
        readAgain();
}

void ParamsCfgTask::readAgain()
{
    const bool isLimited = m_exchanges.at(m_written).checkLimit.count() > 0;
    if (!std::exchange(m_readAgain, true) && isLimited)
        QTimer::singleShot(m_exchanges.at(m_written).checkLimit, this, &ParamsCfgTask::handleTimeout);
    sendRead(m_written);
}

void ParamsCfgTask::finish(const QString &msg, int errorCode)
{
    if (std::exchange(m_finished, true))
        return; // the first result stands, whatever else the device sends
    TaskRouter::instance().remove(this);
    qCDebug(logRun) << m_requestId << m_devId << "ends:" << msg << errorCode;
    emit signalCfgResult(m_devId, msg, errorCode);
}

} // namespace orda_batchCfg
