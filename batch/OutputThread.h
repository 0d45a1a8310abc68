#pragma once

#include <QObject>

#include <memory>

namespace orda_batch {

/// Writes to standard output and standard error output from a thread of its own, in the order in which it is given:
/// a reader that does not read, a terminal that was halted, or a pipe that was closed holds up no device. Never drops
/// anything but what nobody can read any more. GUI thread.
class OutputThread : public QObject
{
    Q_OBJECT

public:
    explicit OutputThread(QObject *parent = nullptr);
    /// Does not wait for what has not been written.
    ~OutputThread() override;

    void write(const QByteArray &bytes); ///< to standard output
    void writeError(const QByteArray &bytes);
    /// Raises signalDrained() when all that was given before is written, or can be read by nobody.
    void drain();

signals:
    void signalDrained();
    /// Once: standard output cannot be written any more. @param why for the user; empty when its reader has gone
    void signalBroken(const QString &why);

private:
    class Thread;
    std::unique_ptr<Thread> m_thread;
};

} // namespace orda_batch
