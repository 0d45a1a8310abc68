#pragma once

#include "engine/DevicePlan.h"
#include "engine/Reach.h"
#include "engine/Selection.h"

#include <QObject>
#include <QPointer>
#include <QSet>

#include <memory>

namespace orda_journal {
class JournalTransport;
}

namespace orda_engine {

class ReadBatch;

/// What reading one device gave.
struct DeviceReading
{
    QString devId;
    Reach reach; ///< whether the device could be asked at all, else why not
    int code = 0; ///< as in ParamsCfgTask::signalCfgResult(); 0 means nothing when the device was not reached
    QString message; ///< of a device that was reached; empty for others
    ObjectsByExchange held = {}; ///< what it holds; where a later read failed, what the ones before gave

    bool isRead() const { return reach.canBeWritten && code == 0; }
};

/// Reads the parameters of many devices and changes nothing. Takes the turn: while it goes on, no run begins. Used
/// once, and never deleted from inside its signals (deleteLater() will do). GUI thread; a QCoreApplication is enough.
class ReadJob : public QObject
{
    Q_OBJECT

public:
    ReadJob(orda_journal::JournalTransport *journal, const Selection &selection, QObject *parent = nullptr);
    /// Gives the turn back; no signal comes any more.
    ~ReadJob() override;

    /// Returns at once; all signals come from the event loop.
    void start();
    /// Devices without a reading are reported at once, with StoppedCode.
    void cancel();

    const Selection &selection() const { return m_selection; }

signals:
    /// Once for each device.
    void signalRead(const orda_engine::DeviceReading &reading);
    void signalProgress(int finished, int total);
    /// Last, and once. @param error why the job could not begin, for the user; empty when it has
    void signalFinished(const QString &error);

private:
    void begin();
    void report(const DeviceReading &reading);
    void finish(const QString &error);
    void giveTurnBack();

    QPointer<orda_journal::JournalTransport> m_journal; // the SDK owns it
    const Selection m_selection;
    std::unique_ptr<ReadBatch> m_batch;
    QSet<QString> m_unreported; // device ids
    bool m_hasTurn = false;
    bool m_isCancelled = false;
    bool m_isOver = false;
};

} // namespace orda_engine

Q_DECLARE_METATYPE(orda_engine::DeviceReading)
