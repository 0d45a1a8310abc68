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

void ReadBatch::start(const QStringList &devIds)
{
    m_run = std::make_unique<CfgRun>(devIds.size());
    connect(m_run.get(), &CfgRun::signalResult, this, [this](const QString &devId, const QString &message, int code) {
        emit signalRead(devId, code, message, m_tasks.take(devId)->objects());
        if (m_run && m_run->isOver())
            QMetaObject::invokeMethod(this, &ReadBatch::finish, Qt::QueuedConnection);
    });
    m_run->start(devIds, [this](const QString &devId) {
        auto *task =
            new ReadTask(*m_selection.family, devId, m_selection.readValuesOf(devId), m_selection.flagsOf(devId), this);
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
