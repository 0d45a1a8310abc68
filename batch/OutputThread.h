#pragma once

#include <QObject>

#include <memory>
#include <unistd.h>

namespace orda_batch {

/// Writes to standard output and standard error output from a thread of its own, in the order in which it is given:
/// a reader that does not read, a terminal that was halted, or a pipe that was closed holds up no device. Never drops
/// anything but what nobody can read any more. GUI thread.
class OutputThread : public QObject
{
    Q_OBJECT

public:
    /// From then on the process ignores SIGPIPE.
    /// @param output, errorOutput descriptors that stay open as long as the process writes to them
    explicit OutputThread(QObject *parent = nullptr, int output = STDOUT_FILENO, int errorOutput = STDERR_FILENO);
    /// Does not wait for what has not been written.
    ~OutputThread() override;
    Q_DISABLE_COPY_MOVE(OutputThread)

    void write(const QByteArray &bytes); ///< to standard output
    void writeError(const QByteArray &bytes);
    /// Raises signalDrained() when all that was given before is written, or can be read by nobody.
    void drain();

    /// Whether something that was given is not written yet, so that what is only for show is better left out.
    bool isBehind() const;
    /// Whether standard output is a terminal.
    bool isTerminal() const { return m_isTerminal; }

signals:
    void signalDrained();
    /// Once: standard output cannot be written any more. @param why for the user; empty when its reader has gone
    void signalBroken(const QString &why);

private:
    class Queue;
    std::shared_ptr<Queue> m_queue;
    bool m_isTerminal;
};

} // namespace orda_batch
