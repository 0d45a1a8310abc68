#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace orda_programs {

/// Turns SIGINT, SIGTERM and SIGUSR1 of this process into Qt signals, raised from the event loop. Made once, before any
/// thread is started: the threads inherit that the signals are blocked.
class UnixSignals : public QObject
{
    Q_OBJECT

public:
    explicit UnixSignals(QObject *parent = nullptr);
    ~UnixSignals() override;

signals:
    void endRequested(); ///< SIGINT or SIGTERM
    void dumpRequested(); ///< SIGUSR1

private:
    void readSignal();

    int m_descriptor;
    QSocketNotifier *m_notifier;
};

} // namespace orda_programs
