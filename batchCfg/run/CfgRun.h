#pragma once

#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace orda_batchCfg {

class ParamsCfgTask;

/// One run: a task for each device, all started at once, and the count of their results. Whoever makes it waits for
/// signalResult() until the run is over. User-interface thread only; free of widgets.
class CfgRun : public QObject
{
    Q_OBJECT

public:
    /// Makes the task of one device. The run releases it after its result; until then its parent owns it.
    using MakeTask = std::function<ParamsCfgTask *(const QString &devId)>;

    /// One run at a time goes on in a process: pages wait for theirs in nested event loops on one stack, where an older
    /// one could only end after the younger ones. True as long as a CfgRun exists.
    static bool isUnderWay();

    /// @param devices how many there are; start() is called with so many
    explicit CfgRun(int devices);
    /// Gives way to the next run. Tasks without a result are left to their parent.
    ~CfgRun() override;

    /// Tells whoever watches @p page that a run is about to begin: the page's dynamic property "run" is set, and
    /// removed when this object goes. Called before start(), or not at all.
    /// @param values by the device's own keys
    /// @return whether the run may begin: a watcher declines it by setting the property "runRefused" to a text
    bool announce(QObject *page, const QString &family, const QJsonObject &values, const QStringList &devIds);

    /// Makes the tasks, in the order of @p devIds. Called once.
    void start(const QStringList &devIds, const MakeTask &makeTask);

    int total() const { return m_total; }
    int success() const { return m_success; }
    int failure() const { return m_failure; }
    int finished() const { return m_success + m_failure; }
    bool isOver() const { return finished() >= m_total; }

signals:
    /// The one result of a device, already counted. The run's owner may be deleted by what hears it.
    /// @param errorCode as in ParamsCfgTask::signalCfgResult()
    void signalResult(const QString &devId, const QString &msg, int errorCode);

private:
    // A task without a result: its place in the run and its request id. All of these are gone through after each
    // result, so they stand side by side in memory.
    using Waiting = QPair<int, QString>;

    bool removeWaiting(int place);
    void handleResult(const QString &devId, const QString &msg, int errorCode);

    static bool s_isUnderWay;
    QPointer<QObject> m_page; // that the run was announced by
    int m_total;
    int m_success = 0;
    int m_failure = 0;
    QVector<Waiting> m_waiting; // by place
};

} // namespace orda_batchCfg
