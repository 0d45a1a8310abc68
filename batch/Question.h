#pragma once

#include <QObject>

#include <unistd.h>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace orda_batch {

class OutputThread;

/// Asks whoever sits at the terminal, without holding up the event loop. GUI thread.
class Question : public QObject
{
    Q_OBJECT

public:
    /// Whether somebody can be asked: standard input and standard error output are terminals.
    static bool canAsk();

    /// @param input the descriptor of the terminal
    explicit Question(OutputThread *output, QObject *parent = nullptr, int input = STDIN_FILENO);
    /// Once. What was typed before counts for nothing.
    /// @param text one or more lines, in which other people's texts may stand as they are; "[y/N] " is added
    void ask(const QString &text);

signals:
    /// Once. Anything but a yes (y, yes, or their word in the language of the program) is a no; so is the end of input.
    void signalAnswered(bool isYes);

private:
    void readAnswer();
    void answer(bool isYes);

    OutputThread *m_output;
    QSocketNotifier *m_notifier; // on while an answer is awaited
    const int m_input;
    QByteArray m_line;
};

} // namespace orda_batch
