#include <vms_client_sdk/onvif/OnvifRequest.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/OnvifCode.h>
#include <vms_client_sdk/onvif/OnvifFamilies.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace vms_sdk {

namespace {

/// Of the entries of a list: what tells them apart.
QStringList keptMembers()
{
    return {QStringLiteral("streamid"), QStringLiteral("token")};
}

} // namespace

OnvifRequest::OnvifRequest(CameraCalls &calls, const QJsonObject &request, QObject *parent)
    : QObject(parent)
    , m_calls(calls)
    , m_method(request.value(QLatin1String("method")).toString())
    , m_param(request.value(QLatin1String("param")).toObject())
{
}

OnvifRequest::~OnvifRequest() = default;

bool OnvifRequest::isWrite(const QString &text)
{
    const QString method = QJsonDocument::fromJson(text.toUtf8()).object().value(QLatin1String("method")).toString();
    const FamilyTable *table = familyOf(method);
    return table && method == QLatin1String(table->writeMethod);
}

void OnvifRequest::start()
{
    const FamilyTable *table = familyOf(m_method);
    if (!table)
        return fail(OnvifNotKnown,
                    QStringLiteral("the ONVIF standard has no counterpart for %1").arg(escaped(m_method)));
    m_isWrite = m_method == QLatin1String(table->writeMethod);
    m_family = makeFamily(*table, m_calls);
    if (!m_family)
        return fail(OnvifNotKnown, QStringLiteral("the device has no service for %1").arg(m_method));
    readOn();
}

void OnvifRequest::endNow(const QString &why)
{
    if (!m_isFinished)
        fail(OnvifTrouble, why, m_isWriting);
}

void OnvifRequest::readOn()
{
    m_reads = m_family->nextReads();
    if (m_reads.empty()) {
        if (m_isWrite)
            return beginWriting();
        return finish({{QStringLiteral("errorcode"), 0}}, m_family->held());
    }
    m_unanswered = m_reads.size();
    m_answers.assign(m_reads.size(), {});
    for (size_t i = 0; i < m_reads.size(); ++i)
        m_calls.call(m_reads[i].service, m_reads[i].request, true, this,
                     [this, i](const CallResult &result) { takeRead(i, result); });
}

void OnvifRequest::takeRead(size_t place, const CallResult &result)
{
    if (m_isFinished || hasFailed(m_reads[place].request, result, false))
        return; // the first failure has ended it all
    m_answers[place] = result.answer;
    if (--m_unanswered > 0)
        return;
    m_family->takeAnswers(std::exchange(m_answers, {}));
    readOn();
}

void OnvifRequest::beginWriting()
{
    const FamilyTable *table = familyOf(m_method);
    const QLatin1String attribute(table->attribute);
    const QLatin1String list(table->list);
    if (attribute.size() > 0 && !m_param.value(attribute).isObject())
        return fail(OnvifNotAllowed, QStringLiteral("the request has no \"%1\"").arg(attribute));
    if (list.size() > 0 && !m_param.value(list).isArray())
        return fail(OnvifNotAllowed, QStringLiteral("the request has no \"%1\"").arg(list));
    m_before = m_family->held();
    m_plan = m_family->plan(attribute.size() > 0 ? m_param.value(attribute).toObject() : m_param);
    if (!m_plan.dropped.isEmpty())
        qCInfo(sdkLog, "%s: no counterpart for %s", qPrintable(m_method),
               qPrintable(escaped(m_plan.dropped.join(QLatin1String(", ")))));
    if (!m_plan.refused.isEmpty())
        return fail(OnvifNotAllowed, m_plan.refused);
    writeOn();
}

void OnvifRequest::writeOn()
{
    if (m_written == m_plan.writes.size())
        return finish({{QStringLiteral("errorcode"), 0}}, m_family->held());
    const OnvifOperation &operation = m_plan.writes[m_written].operation;
    m_isWriting = true;
    m_calls.call(operation.service, operation.request, false, this,
                 [this](const CallResult &result) { takeWritten(result); });
}

void OnvifRequest::takeWritten(const CallResult &result)
{
    if (m_isFinished)
        return;
    const OnvifWrite &write = m_plan.writes[m_written];
    if (hasFailed(write.operation.request, result, true))
        return;
    write.done(result.answer);
    ++m_written;
    writeOn();
}

/// Ends the request when an operation has failed.
bool OnvifRequest::hasFailed(const XmlElement &operation, const CallResult &result, bool isWrite)
{
    const QByteArray expected = (operation.name + QLatin1String("Response")).toLatin1();
    const QByteArray ofNamespace = operation.namespaceUri.toLatin1();
    QString why = result.trouble;
    bool mayBeDone = result.mayBeDone;
    int code = OnvifTrouble;
    if (result.fault) {
        why = result.fault->text();
        code = result.fault->is("ActionNotSupported") ? OnvifNotKnown : OnvifFault;
        mayBeDone = false;
    } else if (why.isEmpty() && !result.answer.is(ofNamespace.constData(), expected.constData())) {
        why = QStringLiteral("the answer is for another operation");
        mayBeDone = true; // there was a good answer, though not one that can be understood
    }
    if (why.isEmpty() && result.isGood())
        return false;
    qCInfo(sdkLog, "%s: %s", qPrintable(operation.name), qPrintable(escaped(why)));
    fail(code, QStringLiteral("%1: %2").arg(operation.name, escaped(why)), isWrite && mayBeDone);
    return true;
}

void OnvifRequest::fail(int code, const QString &message, bool isUnanswered)
{
    QJsonObject error{{QStringLiteral("errorcode"), code}, {QStringLiteral("message"), message}};
    if (isUnanswered) {
        const QJsonObject sure = m_family->held();
        m_plan.writes[m_written].done({});
        error.insert(QStringLiteral("unanswered"), changedMembers(sure, m_family->held(), keptMembers()));
        finish(error, sure);
    } else {
        finish(error, m_family ? m_family->held() : QJsonObject());
    }
}

/// @param held what the camera holds for sure
void OnvifRequest::finish(const QJsonObject &error, const QJsonObject &held)
{
    if (std::exchange(m_isFinished, true))
        return;
    const bool isGood = error.value(QLatin1String("errorcode")).toInt() == 0;
    QJsonObject answer{{QStringLiteral("method"), m_method}, {QStringLiteral("error"), error}};
    if (m_isWrite && (isGood || m_written > 0)) {
        answer.insert(QStringLiteral("result"), changedMembers(m_before, held, keptMembers()));
    } else if (isGood) {
        answer.insert(QStringLiteral("result"), held);
    }
    if (!m_plan.dropped.isEmpty())
        answer.insert(QStringLiteral("dropped"), QJsonArray::fromStringList(m_plan.dropped));
    emit finished(answer);
}

} // namespace vms_sdk
