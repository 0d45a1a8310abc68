#include "batch/ProgressDisplay.h"

#include "batch/OutputThread.h"
#include "batch/TextTable.h"

#include <vms_client_sdk/ForeignText.h>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace orda_batch {

using orda_journal::Outcome;

namespace {

constexpr int redrawInterval = 100; // in milliseconds
constexpr int failureMessages = 5;
constexpr int widestBar = 30;
constexpr int narrowestBar = 5; // which still tells something

winsize terminalSize()
{
    winsize size{};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return {24, 80, 0, 0};
    return size;
}

/// A program in the background leaves the terminal to the one in front.
bool isInBackground()
{
    const pid_t front = ::tcgetpgrp(STDERR_FILENO);
    return front != -1 && front != ::getpgrp();
}

/// As it fits into a line, with a sign that it was cut.
QString cutToWidth(const QString &text, int width)
{
    if (shownWidth(text) <= width)
        return text;
    QString cut;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        const QString longer = cut + QString::fromUcs4(&character, 1);
        if (shownWidth(longer) > width - 1)
            break;
        cut = longer;
    }
    return cut + QChar(0x2026); // "…"
}

} // namespace

ProgressDisplay::ProgressDisplay(OutputThread *output, QObject *parent)
    : QObject(parent)
    , m_output(output)
    , m_isTerminal(::isatty(STDERR_FILENO) && qgetenv("TERM") != "dumb" && !qEnvironmentVariableIsEmpty("TERM"))
{
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, &ProgressDisplay::draw);
}

void ProgressDisplay::begin(const QString &what, int total)
{
    end();
    m_what = what;
    m_total = total;
    m_finished = m_failed = m_notReached = m_stopped = 0;
    m_failures.clear();
    m_clock.start();
    showLater();
}

void ProgressDisplay::take(Outcome outcome, const QString &message)
{
    ++m_finished;
    showLater();
    switch (outcome) {
    case Outcome::Done:
    case Outcome::Unchanged:
        return;
    case Outcome::Stopped:
        ++m_stopped;
        return;
    case Outcome::NotReached:
        ++m_notReached;
        break;
    case Outcome::Failed:
    case Outcome::Unknown:
    case Outcome::PartlyWritten:
    case Outcome::Differs:
        ++m_failed;
    }
    ++m_failures[message];
}

void ProgressDisplay::setFinished(int finished)
{
    m_finished = finished;
    showLater();
}

void ProgressDisplay::clear()
{
    if (m_lines > 0)
        m_redraw.start(0); // after the other lines
    erase();
}

void ProgressDisplay::erase()
{
    if (m_lines > 0) {
        const QByteArray up = m_lines > 1 ? "\033[" + QByteArray::number(m_lines - 1) + 'A' : QByteArray();
        m_output->writeError('\r' + up + "\033[J");
    }
    m_lines = 0;
}

void ProgressDisplay::end()
{
    m_redraw.stop();
    erase();
}

void ProgressDisplay::showLater()
{
    if (m_isTerminal && !m_redraw.isActive())
        m_redraw.start(redrawInterval);
}

void ProgressDisplay::draw()
{
    if (m_output->isBehind()) { // the terminal is halted: what is only for show does not queue up
        m_redraw.start(redrawInterval);
        return;
    }
    erase();
    if (isInBackground())
        return;
    const winsize size = terminalSize();
    const int columns = size.ws_col - 1; // a cursor beyond the last column would be in the next line on some terminals
    QStringList lines{cutToWidth(bar(columns), columns)};
    const QStringList failures = failureLines(std::min(failureMessages, size.ws_row - 2));
    const bool hasColors = qEnvironmentVariableIsEmpty("NO_COLOR");
    for (const QString &failure : failures) {
        const QString line = cutToWidth(failure, columns);
        lines.append(hasColors ? QLatin1String("\033[31m") + line + QLatin1String("\033[0m") : line);
    }
    // The cursor rests at the beginning of a line, where the "^C" of a terminal breaks none.
    m_output->writeError(lines.join(QLatin1Char('\n')).toUtf8() + '\r');
    m_lines = lines.size();
}

/// "Configuring  [#######-----]  412 done, 3 failed, 585 left, 210/s"
QString ProgressDisplay::bar(int columns) const
{
    QStringList counts{tr("%1 done").arg(m_finished - m_failed - m_notReached - m_stopped)};
    if (m_failed > 0)
        counts.append(tr("%1 failed").arg(m_failed));
    if (m_notReached > 0)
        counts.append(tr("%1 not reached").arg(m_notReached));
    counts.append(tr("%1 left").arg(m_total - m_finished));
    counts.append(
        tr("%1/s", "devices a second").arg(m_finished * qint64(1000) / std::max<qint64>(m_clock.elapsed(), 1)));
    const QString text = counts.join(QLatin1String(", "));

    const int around = shownWidth(m_what) + shownWidth(text) + 6; // brackets and blanks
    const int width = std::min(columns - around, widestBar);
    if (width < narrowestBar)
        return m_what + QLatin1String("  ") + text;
    const int filled = m_total > 0 ? int(qint64(width) * std::min(m_finished, m_total) / m_total) : 0;
    return QStringLiteral("%1  [%2%3]  %4")
        .arg(m_what, QString(filled, QLatin1Char('#')), QString(width - filled, QLatin1Char('-')), text);
}

/// "  2 × Failed to …" of the most frequent messages; the last line may speak of the others.
QStringList ProgressDisplay::failureLines(int count) const
{
    QStringList messages = m_failures.keys();
    const bool hasMore = messages.size() > count;
    const int shown = std::max(hasMore ? count - 1 : messages.size(), 0);
    std::partial_sort(messages.begin(), messages.begin() + shown, messages.end(),
                      [this](const QString &a, const QString &b) {
                          const int ofA = m_failures.value(a);
                          const int ofB = m_failures.value(b);
                          return ofA != ofB ? ofA > ofB : a < b;
                      });
    QStringList lines;
    messages.erase(messages.begin() + shown, messages.end());
    for (const QString &message : qAsConst(messages))
        lines.append(
            QStringLiteral("  %1 × %2").arg(QString::number(m_failures.value(message)), vms_sdk::escaped(message)));
    if (hasMore && count > 0)
        lines.append(tr("  and %n other message(s)", nullptr, m_failures.size() - shown));
    return lines;
}

} // namespace orda_batch
