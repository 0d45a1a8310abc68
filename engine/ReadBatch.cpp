#include "engine/ReadBatch.h"

#include "engine/ReadTask.h"

#include <vms_client_sdk/OnvifCode.h>
#include <vms_client_sdk/Requests.h>

namespace orda_engine {

namespace {

// A run renews all others with each result, which is half of the time that 10,000 readings take.
constexpr qint64 renewalMs = 20;

} // namespace

ReadBatch::ReadBatch(const Selection &selection, QObject *parent)
    : QObject(parent)
    , m_selection(selection)
{
}

void ReadBatch::start(const QStringList &devIds, const QHash<QString, int> &ownFlags)
{
    // Nearly all devices are asked the same: it is worked out once.
    const QJsonObject values = m_selection.readValuesFor(m_selection.values);
    const int flags = m_selection.flagsFor(m_selection.values);
    m_sinceRenewal.start();
    for (const QString &devId : devIds) {
        const auto own = m_selection.ownValues.constFind(devId);
        const bool isAsOthers = own == m_selection.ownValues.constEnd();
        const int asked = ownFlags.value(devId, isAsOthers ? flags : m_selection.flagsFor(*own));
        auto *task = new ReadTask(*m_selection.family, devId, isAsOthers ? values : m_selection.readValuesFor(*own),
                                  m_selection.readableFlags(devId, asked), this);
        m_tasks.insert(devId, task);
        connect(task, &ReadTask::signalCfgResult, this,
                [this, task](const QString &, const QString &message, int code) { take(task, message, code); });
    }
}

void ReadBatch::take(ReadTask *task, const QString &message, int code)
{
    m_tasks.remove(task->devId());
    task->deleteLater();
    renewOthers();
    const QString meaning = vms_sdk::onvifCodeText(code);
    emit signalRead(task->devId(), code, meaning.isEmpty() ? message : tr("%1: %2").arg(message, meaning),
                    task->objects());
    if (m_tasks.isEmpty() && !m_isCancelled)
        QMetaObject::invokeMethod(this, &ReadBatch::finish, Qt::QueuedConnection);
}

// A device that answers shows that the line is working: all the others get their whole waiting time again.
void ReadBatch::renewOthers()
{
    if (m_sinceRenewal.elapsed() < renewalMs)
        return;
    m_sinceRenewal.start();
    for (const ReadTask *task : qAsConst(m_tasks))
        vms_sdk::renewal_request_id(task->requestId());
}

void ReadBatch::finish()
{
    if (!m_isCancelled)
        emit signalFinished();
}

void ReadBatch::cancel()
{
    m_isCancelled = true;
    qDeleteAll(m_tasks);
    m_tasks.clear();
}

} // namespace orda_engine
