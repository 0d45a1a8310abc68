#include "run/ParamsCfgTask.h"

#include "run/Logging.h"
#include "run/TaskRouter.h"

#include <orda_base/BaseTools.h>
#include <vms_client_sdk/Requests.h>

#include <QHash>
#include <QJsonDocument>
#include <QTimer>
#include <QUuid>

#include <utility>

namespace orda_batchCfg {

namespace {
QString makeRequestText(const QString &method, const std::optional<QJsonObject> &param)
{
    QJsonObject request{{QStringLiteral("method"), method}, {QStringLiteral("level"), QStringLiteral("Operator")}};
    if (param)
        request.insert(QStringLiteral("param"), *param);
    const QByteArray json = QJsonDocument(request).toJson();
    return QString::fromUtf8(json.constData(), json.size());
}

struct LastRequest
{
    std::optional<QJsonObject> param;
    QString text;
};

int livingTasks = 0;

/// By method; cleared when no task is left, because settings may be passwords.
QHash<QString, LastRequest> &lastRequests()
{
    static QHash<QString, LastRequest> last;
    return last;
}

/// Most devices of a run are asked the same, and many hold the same and are told the same, one after the other. The
/// text is made for the first of them, because making it costs a multiple of comparing.
QString requestText(const QString &method, const std::optional<QJsonObject> &param)
{
    LastRequest &last = lastRequests()[method];
    if (last.text.isEmpty() || last.param != param)
        last = {param, makeRequestText(method, param)};
    return last.text;
}

/// 0, success, for everything that is no whole number in the range of an int: so the protocol has it.
int errorCodeOf(const QJsonObject &answer)
{
    return answer.value(QLatin1String("error")).toObject().value(QLatin1String("errorcode")).toInt(0);
}

} // namespace

ParamsCfgTask::ParamsCfgTask(const CfgFamily &family, const QString &devId, const QJsonObject &values, int flags,
                             QObject *parent)
    : QObject(parent)
    , m_family(family)
    , m_requestId(QUuid::createUuid().toString())
    , m_devId(devId)
    , m_flags(flags)
    , m_values(values)
{
    ++livingTasks;
    sendRead(m_family.exchangesOf(m_flags).constFirst());
    TaskRouter::instance().add(this);
}

QString ParamsCfgTask::successText()
{
    return tr("success");
}

QString ParamsCfgTask::notJsonText()
{
    return tr("Failed to parse json data");
}

ParamsCfgTask::~ParamsCfgTask()
{
    if (!m_finished)
        TaskRouter::instance().remove(this);
    if (--livingTasks == 0)
        lastRequests().clear();
}

void ParamsCfgTask::sendRead(int exchange)
{
    m_answered &= ~answeredBit(exchange, true);
    const CfgExchange &e = m_family.exchanges.at(exchange);
    std::optional<QJsonObject> param;
    if (e.getParam)
        param = e.getParam(m_values);
    send(e.getMethod, requestText(e.getMethod, param));
}

void ParamsCfgTask::sendWrite(int exchange)
{
    m_written = exchange;
    m_answered &= ~answeredBit(exchange, false);
    const CfgExchange &e = m_family.exchanges.at(exchange);
    QJsonObject devParams = std::exchange(m_devParams, {});
    const auto own = std::exchange(m_ownParam, std::nullopt);
    const QJsonObject param = own ? *own : e.setParam(m_values, std::move(devParams));
    if (e.checkWhenBack)
        m_checked = param;
    send(e.setMethod, requestText(e.setMethod, param));
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
        finish(notJsonText(), NotJson);
        return;
    }
    const QString method = answer.value(QLatin1String("method")).toString();
    const int errorCode = errorCodeOf(answer);

    for (int i = 0; i < m_family.exchanges.size(); ++i) {
        const CfgExchange &exchange = m_family.exchanges.at(i);
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
            handleRead(i, answer, errorCode);
        else
            handleWritten(i, errorCode);
        return;
    }
    qCDebug(logRun) << m_requestId << m_devId << "answer to a method that is none of ours dropped:" << method;
}

void ParamsCfgTask::handleRead(int exchange, const QJsonObject &answer, int errorCode)
{
    const CfgExchange &e = m_family.exchanges.at(exchange);
    if (errorCode != 0) {
        finish(m_family.translated(e.getFailure).arg(errorCode), errorCode);
        return;
    }
    m_devParams = e.heldIn(answer);
    if (e.checkWhenBack && m_written == exchange)
        checkSettings(exchange);
    else
        handleDevParams(exchange, m_devParams);
}

void ParamsCfgTask::handleDevParams(int exchange, const QJsonObject &)
{
    writeLater(exchange);
}

void ParamsCfgTask::writeLater(int exchange, const std::optional<QJsonObject> &param)
{
    m_ownParam = param;
    TaskRouter::instance().callLater(this, &ParamsCfgTask::sendWrite, exchange);
}

void ParamsCfgTask::dropUnaskedAnswers()
{
    m_answered = ~answeredBit(m_family.exchangesOf(m_flags).constFirst(), true);
}

void ParamsCfgTask::handleWritten(int exchange, int errorCode)
{
    if (errorCode != 0) {
        finish(m_family.translated(m_family.exchanges.at(exchange).setFailure).arg(errorCode), errorCode);
        return;
    }
    goOnAfter(exchange);
}

void ParamsCfgTask::goOnAfter(int exchange)
{
    const int next = m_family.exchangeFrom(exchange + 1, m_flags);
    if (next >= 0)
        TaskRouter::instance().callLater(this, &ParamsCfgTask::sendRead, next);
    else
        finish(successText(), Success);
}

void ParamsCfgTask::checkSettings(int exchange)
{
    const CfgExchange &e = m_family.exchanges.at(exchange);
    if (e.holds(m_checked, m_devParams))
        finish(successText(), Success);
    else
        finish(m_family.translated(e.setFailure).arg(int(NotVerified)), NotVerified);
}

void ParamsCfgTask::handleTimeout()
{
    finish(m_family.translated(m_family.timeoutText), TimedOut);
}

void ParamsCfgTask::handleDevStatus(vms_sdk::DevStatus status)
{
    if (m_written >= 0 && m_family.exchanges.at(m_written).checkWhenBack
        && orda_base::BaseTools::instance().isDevOnline(status))
        readAgain();
}

void ParamsCfgTask::readAgain()
{
    const auto limit = m_checkLimit.count() > 0 ? m_checkLimit : m_family.exchanges.at(m_written).checkLimit;
    if (!std::exchange(m_readAgain, true))
        QTimer::singleShot(limit, this, &ParamsCfgTask::handleTimeout);
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
