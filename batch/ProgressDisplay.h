#pragma once

#include "journal/Outcome.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QTimer>

namespace orda_batch {

class OutputThread;

/// How far a command is, on the terminal: a bar with done, failed, left and devices a second, and under it the messages
/// of failures with how many devices have each. Redrawn a few times a second. Nothing at all when the standard error
/// output is no terminal, or one that cannot move its cursor. GUI thread.
class ProgressDisplay : public QObject
{
    Q_OBJECT

public:
    explicit ProgressDisplay(OutputThread *output, QObject *parent = nullptr);

    /// @param what "Connecting", "Reading" … @param total devices
    void begin(const QString &what, int total);
    /// A device has its outcome.
    void take(orda_journal::Outcome outcome, const QString &message);
    /// Without outcomes: how many of the total are through.
    void setFinished(int finished);
    /// Takes the bar away so that other lines can be written; it comes back under what is written before the next turn
    /// of the event loop.
    void clear();
    void end();

private:
    void showLater();
    void erase();
    void draw();
    QString bar(int columns) const;
    QStringList failureLines(int count) const;

    OutputThread *m_output;
    QTimer m_redraw;
    QElapsedTimer m_clock;
    QString m_what;
    int m_total = 0;
    int m_finished = 0;
    int m_failed = 0;
    int m_notReached = 0;
    int m_stopped = 0;
    QMap<QString, int> m_failures; // how many devices have each message
    int m_lines = 0; // that are drawn
    bool m_isTerminal;
};

} // namespace orda_batch
