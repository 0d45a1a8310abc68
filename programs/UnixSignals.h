#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace orda_programs {

/// Turns SIGINT, SIGTERM, SIGHUP and SIGUSR1 of this process into Qt signals, raised from the event loop. Made once,
/// before any thread is started: the threads inherit that the signals are blocked.
class UnixSignals : public QObject
{
    Q_OBJECT

public:
    explicit UnixSignals(QObject *parent = nullptr);
    ~UnixSignals() override;

signals:
    /// SIGINT, SIGTERM, or the terminal has gone (SIGHUP), which is told once
    void endRequested();
    void dumpRequested(); ///< SIGUSR1

private:
    void readSignal();

    int m_descriptor;
    bool m_isHungUp = false;
    QSocketNotifier *m_notifier;
};

} // namespace orda_programs
