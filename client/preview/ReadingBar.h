#pragma once

#include "engine/ReadJob.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

namespace orda_client {

/// Reads devices for a window, and shows how far that is, with a button that stops it. Hidden while nothing is read.
/// Deleted with its window in the middle of a reading, it gives the turn back.
class ReadingBar : public QWidget
{
    Q_OBJECT

public:
    explicit ReadingBar(QWidget *parent = nullptr);

    /// Ends a reading that is under way, of which nothing is told any more, and begins another.
    /// @param journal null: there is no connection, and signalFinished() says so
    void start(orda_journal::JournalTransport *journal, const orda_engine::Selection &selection);
    /// Ends it likewise.
    void forget();
    bool isReading() const { return m_job; }

signals:
    /// Once for each device. Thousands may come in one turn of the event loop: a table is brought up to date at
    /// signalFresh().
    void signalRead(const orda_engine::DeviceReading &reading);
    /// Devices were read since the last time.
    void signalFresh();
    /// Last, also when it was stopped: the devices that were not waited for have StoppedCode then.
    /// @param error why nothing was read, for the user; empty else
    void signalFinished(const QString &error);

private:
    void stop();
    void showProgress();
    void showCount();

    QLabel *m_text; // how many, in words and figures
    QProgressBar *m_progress;
    QPushButton *m_stop;
    QPointer<orda_engine::ReadJob> m_job; // null: nothing is read
    QTimer m_freshTimer;
    int m_read = 0;
    int m_shown = 0; // of those read
};

} // namespace orda_client
