#include "batch/Question.h"

#include "batch/OutputThread.h"

#include <vms_client_sdk/ForeignText.h>

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <termios.h>

namespace orda_batch {

bool Question::canAsk()
{
    return ::isatty(STDIN_FILENO) && ::isatty(STDERR_FILENO);
}

Question::Question(OutputThread *output, QObject *parent, int input)
    : QObject(parent)
    , m_output(output)
    , m_notifier(new QSocketNotifier(input, QSocketNotifier::Read, this))
    , m_input(input)
{
    m_notifier->setEnabled(false);
    connect(m_notifier, &QSocketNotifier::activated, this, &Question::readAnswer);
}

void Question::ask(const QString &text)
{
    ::tcflush(m_input, TCIFLUSH); // nobody has answered a question before reading it
    const QString question = vms_sdk::escaped(text, QStringLiteral("\n"));
    m_output->writeError((question + QLatin1Char(' ') + tr("[y/N]") + QLatin1Char(' ')).toUtf8());
    m_notifier->setEnabled(true);
}

void Question::readAnswer()
{
    std::array<char, 256> bytes{};
    const ssize_t count = ::read(m_input, bytes.data(), bytes.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0) { // the end of input leaves the cursor behind the question
        m_output->writeError("\n");
        answer(false);
        return;
    }
    m_line.append(bytes.data(), int(count));
    const int end = m_line.indexOf('\n');
    if (end < 0)
        return;
    const QString word = QString::fromLocal8Bit(m_line.left(end)).trimmed().toLower();
    const QStringList yes{QStringLiteral("y"), QStringLiteral("yes"), tr("y", "short for yes, as in [y/N]").toLower(),
                          tr("yes", "an answer").toLower()};
    answer(yes.contains(word));
}

void Question::answer(bool isYes)
{
    m_notifier->setEnabled(false);
    emit signalAnswered(isYes);
}

} // namespace orda_batch
