#pragma once

#include <QObject>

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

    explicit Question(OutputThread *output, QObject *parent = nullptr);
    /// @param text one or more lines; "[y/N] " is added
    void ask(const QString &text);

signals:
    /// Once. Anything but a yes (y, yes, or their word in the language of the program) is a no; so is the end of input.
    void signalAnswered(bool isYes);

private:
    void readAnswer();

    OutputThread *m_output;
    QSocketNotifier *m_notifier;
    QByteArray m_line;
};

} // namespace orda_batch
