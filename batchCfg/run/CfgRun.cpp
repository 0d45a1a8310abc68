#include "run/CfgRun.h"

#include "run/ParamsCfgTask.h"

#include <vms_client_sdk/Requests.h>

#include <algorithm>

namespace orda_batchCfg {

namespace {

// For watchers, in other programs too: docs/scripting.md.
constexpr char runProperty[] = "run";
constexpr char refusedProperty[] = "runRefused";

} // namespace

bool CfgRun::s_isUnderWay = false;

bool CfgRun::isUnderWay()
{
    return s_isUnderWay;
}

CfgRun::CfgRun(int devices)
    : m_total(devices)
{
    Q_ASSERT(!s_isUnderWay);
    s_isUnderWay = true;
}

CfgRun::~CfgRun()
{
    s_isUnderWay = false;
    if (m_page)
        m_page->setProperty(runProperty, {});
}

bool CfgRun::announce(QObject *page, const QString &family, const QJsonObject &values, const QStringList &devIds)
{
    m_page = page;
    page->setProperty(refusedProperty, {});
    page->setProperty(runProperty, QVariantMap{{QStringLiteral("family"), family},
                                               {QStringLiteral("values"), values},
                                               {QStringLiteral("devIds"), devIds}});
    return m_page && m_page->property(refusedProperty).toString().isEmpty();
}

void CfgRun::start(const QStringList &devIds, const MakeTask &makeTask)
{
    for (int place = 0; place < devIds.size(); ++place) {
        ParamsCfgTask *task = makeTask(devIds.at(place));
        m_waiting.append({place, task->requestId()});
        connect(task, &ParamsCfgTask::signalCfgResult, this,
                [this, place, task](const QString &devId, const QString &msg, int errorCode) {
                    if (removeWaiting(place)) {
                        task->deleteLater();
                        handleResult(devId, msg, errorCode);
                    }
                });
    }
}

bool CfgRun::removeWaiting(int place)
{
    const auto found = std::lower_bound(m_waiting.begin(), m_waiting.end(), place,
                                        [](const Waiting &candidate, int wanted) { return candidate.first < wanted; });
    if (found == m_waiting.end() || found->first != place)
        return false;
    m_waiting.erase(found);
    return true;
}

void CfgRun::handleResult(const QString &devId, const QString &msg, int errorCode)
{
    // A device that answers shows that the line is working: all the others get their whole waiting time again.
    for (const Waiting &task : qAsConst(m_waiting))
        vms_sdk::renewal_request_id(task.second);
    ++(errorCode == ParamsCfgTask::Success ? m_success : m_failure);
    emit signalResult(devId, msg, errorCode);
}

} // namespace orda_batchCfg
