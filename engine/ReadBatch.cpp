#include "engine/ReadBatch.h"

#include "engine/ReadTask.h"

#include <run/CfgRun.h>

namespace orda_engine {

using orda_batchCfg::CfgRun;

ReadBatch::ReadBatch(const Selection &selection, QObject *parent)
    : QObject(parent)
    , m_selection(selection)
{
}

ReadBatch::~ReadBatch() = default;

void ReadBatch::start(const QStringList &devIds, const QHash<QString, int> &ownFlags)
{
    m_run = std::make_unique<CfgRun>(devIds.size());
    connect(m_run.get(), &CfgRun::signalResult, this, [this](const QString &devId, const QString &message, int code) {
        emit signalRead(devId, code, message, m_tasks.take(devId)->objects());
        if (m_run && m_run->isOver())
            QMetaObject::invokeMethod(this, &ReadBatch::finish, Qt::QueuedConnection);
    });
    // Nearly all devices are asked the same: it is worked out once.
    const QJsonObject values = m_selection.readValuesFor(m_selection.values);
    const int flags = m_selection.flagsFor(m_selection.values);
    m_run->start(devIds, [this, &ownFlags, &values, flags](const QString &devId) {
        const auto own = m_selection.ownValues.constFind(devId);
        const bool isAsOthers = own == m_selection.ownValues.constEnd();
        auto *task = new ReadTask(*m_selection.family, devId, isAsOthers ? values : m_selection.readValuesFor(*own),
                                  ownFlags.value(devId, isAsOthers ? flags : m_selection.flagsFor(*own)), this);
        m_tasks.insert(devId, task);
        return task;
    });
}

void ReadBatch::finish()
{
    if (!m_run)
        return; // cancelled meanwhile
    m_run.reset(); // gives way to the next run, however long this object lives
    emit signalFinished();
}

void ReadBatch::cancel()
{
    m_run.reset();
    qDeleteAll(m_tasks);
    m_tasks.clear();
}

} // namespace orda_engine
