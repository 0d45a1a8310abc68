#pragma once

#include "engine/DevicePlan.h"
#include "engine/Selection.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

namespace orda_engine {

class ReadTask;

/// Reads many devices at once, for the jobs, which see to it that they may be asked now. Used once.
class ReadBatch : public QObject
{
    Q_OBJECT

public:
    explicit ReadBatch(const Selection &selection, QObject *parent = nullptr);

    /// Sends the first requests. @param devIds at least one
    /// @param ownFlags by device id: of the exchanges to read, in place of those that the selection needs
    void start(const QStringList &devIds, const QHash<QString, int> &ownFlags = {});
    /// No signal comes any more. May be called from inside one.
    void cancel();

signals:
    /// Once for each device. @param code, @param message as in ParamsCfgTask::signalCfgResult()
    /// @param held as in ReadTask::objects()
    void signalRead(const QString &devId, int code, const QString &message, const orda_engine::ObjectsByExchange &held);
    /// After the last one, from the event loop.
    void signalFinished();

private:
    void take(ReadTask *task, const QString &message, int code);
    void renewOthers();
    void finish();

    const Selection m_selection;
    QHash<QString, ReadTask *> m_tasks; // without a result yet, by device id
    QElapsedTimer m_sinceRenewal;
    bool m_isCancelled = false;
};

} // namespace orda_engine
