#include "client/progress/RunProgress.h"

#include "client/common/ElidedLabel.h"
#include "client/common/Widgets.h"
#include "client/settings/ClientSettings.h"
#include "journal/JournalTransport.h"

#include <orda_base/DelayedCall.h>
#include <orda_base/ReturnPressesButton.h>
#include <orda_data/DevsMgrData.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStringList>

#include <cmath>

namespace orda_client {

using orda_journal::DeviceRow;
using orda_journal::JournalTransport;
using orda_journal::RunStart;
using orda_journal::Settled;

namespace {

using namespace std::chrono_literals;

constexpr auto refreshInterval = 250ms;
constexpr auto announceDelay = 2s; // a screen reader needs that long for one text
constexpr int failuresShown = 3;
constexpr int offlineNamed = 2;
constexpr int barWidth = 160;
constexpr int spacing = 2;

QString nameOf(const QString &devId)
{
    const vms_sdk::DevInfo dev = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    const QString name = dev.name.isEmpty() ? dev.serialNumber : dev.name;
    return name.isEmpty() ? devId : name;
}

QString offlineText(const QStringList &devIds)
{
    const auto &store = orda_data::DevsMgrData::instance();
    QStringList names;
    int more = 0;
    for (const QString &devId : devIds) {
        if (vms_sdk::isOnlineStatus(store.getDevStatus(devId)))
            continue;
        if (names.size() < offlineNamed)
            names.append(nameOf(devId));
        else
            ++more;
    }
    if (names.isEmpty())
        return {};
    const QString named = names.join(QStringLiteral(", "));
    return RunProgress::tr("Known to be off line: %1")
        .arg(more == 0 ? named : RunProgress::tr("%1 and %Ln more", "names of devices", more).arg(named));
}

QString failuresText(const QVector<DeviceRow> &rows)
{
    QStringList texts;
    for (const DeviceRow &row : rows)
        texts.append(RunProgress::tr("%1 (%2)", "device, why it failed").arg(nameOf(row.devId), row.message));
    return texts.isEmpty() ? QString() : RunProgress::tr("Latest failures: %1").arg(texts.join(QStringLiteral("; ")));
}

void showText(ElidedLabel *label, const QString &text)
{
    label->setWholeText(text);
    label->setVisible(!text.isEmpty());
}

} // namespace

RunProgress::RunProgress(JournalTransport *journal, const ClientSettings *settings, QWidget *parent)
    : QWidget(parent)
    , m_journal(journal)
    , m_settings(settings)
    , m_counts(new ElidedLabel(QStringLiteral("runCounts"), this))
    , m_stopped(new ElidedLabel(QStringLiteral("runStopped"), this))
    , m_offline(new ElidedLabel(QStringLiteral("runOffline"), this))
    , m_failures(new ElidedLabel(QStringLiteral("runFailures"), this))
    , m_bar(new QProgressBar(this))
    , m_stopShortcut(new QShortcut(QKeySequence(Qt::SHIFT + Qt::Key_Escape), this))
    , m_announceSoon(new orda_base::DelayedCall(
          announceDelay, [this] { announce(); }, this))
{
    setObjectName(QStringLiteral("runProgress"));
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(barWidth);
    m_bar->setAccessibleName(tr("Devices of the run that have their result"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_counts, 1);
    row->addWidget(m_bar, 0, Qt::AlignVCenter);
    row->addWidget(buildButtons());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    layout->addLayout(row);
    for (QWidget *label : {m_stopped, m_offline, m_failures})
        layout->addWidget(label);

    connect(&m_refreshTimer, &QTimer::timeout, this, &RunProgress::refresh);
    if (m_journal) {
        connect(m_journal, &JournalTransport::signalRunBegan, this, &RunProgress::followRun);
        connect(m_journal, &JournalTransport::signalSettled, this, &RunProgress::takeSettled);
        connect(m_journal, &JournalTransport::signalRunEnded, this, &RunProgress::showEnd);
    }
    hide();
}

QWidget *RunProgress::buildButtons()
{
    auto *buttons = new QWidget(this);
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [layout](const QString &text, const char *objectName) {
        auto *button = styledButton(text, objectName);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus with what covers the form
        new orda_base::ReturnPressesButton(button); // as in the form
        layout->addWidget(button);
        return button;
    };
    m_stopBt = add(tr("&Stop"), "stopRun");
    m_stopBt->setToolTip(
        tr("What has not left yet is not sent (%1)").arg(m_stopShortcut->key().toString(QKeySequence::NativeText)));
    m_showRunBt = add(tr("Sho&w run"), "showRun");
    m_closeBt = add(tr("Cl&ose"), "closeRun");
    m_stopShortcut->setAutoRepeat(false);
    const auto stopNow = [this] { stop(tr("Stopped")); };
    connect(m_stopBt, &QPushButton::clicked, this, stopNow);
    connect(m_stopShortcut, &QShortcut::activated, this, stopNow);
    connect(m_showRunBt, &QPushButton::clicked, this, [this] { emit signalShowRun(m_runId); });
    connect(m_closeBt, &QPushButton::clicked, this, &QWidget::hide);
    return buttons;
}

void RunProgress::followRun(const RunStart &run)
{
    m_tally = RunTally(run.devIds.size());
    m_clock.start();
    m_runId = run.id;
    m_whyStopped.clear();
    m_latestFailures.clear();
    m_haltShare = m_settings->haltShare();
    m_bar->setRange(0, run.devIds.size());
    showText(m_offline, offlineText(run.devIds));
    showButtons(true);
    m_refreshTimer.start(refreshInterval);
    refresh();
    announce();
    show();
}

void RunProgress::takeSettled(const Settled &settled)
{
    const int failedBefore = m_tally.failed();
    m_tally.add(*settled.row.outcome, std::chrono::milliseconds(m_clock.elapsed()));
    if (m_tally.failed() == failedBefore)
        return;
    m_latestFailures.prepend(settled.row);
    m_latestFailures.resize(std::min(m_latestFailures.size(), failuresShown));
    if (m_tally.left() > 0 && m_tally.hasFailedAbove(m_haltShare))
        stop(tr("Halted, because more than %1 % of the devices have failed").arg(m_haltShare));
}

void RunProgress::stop(const QString &why)
{
    if (!m_journal || !m_journal->isBusy() || !m_whyStopped.isEmpty())
        return;
    m_whyStopped = why;
    m_stopBt->setEnabled(false);
    m_journal->stop(); // tells of devices that end so
    refresh();
    announce();
}

void RunProgress::showEnd()
{
    m_refreshTimer.stop();
    showButtons(false);
    refresh();
    announce();
}

void RunProgress::showButtons(bool isGoingOn)
{
    m_bar->setVisible(isGoingOn);
    m_stopBt->setVisible(isGoingOn);
    m_stopBt->setEnabled(isGoingOn);
    m_stopShortcut->setEnabled(isGoingOn);
    m_showRunBt->setVisible(!isGoingOn);
    m_closeBt->setVisible(!isGoingOn);
}

void RunProgress::refresh()
{
    m_bar->setValue(m_tally.settled());
    m_counts->setWholeText(isGoingOn() ? countsText() : resultText());
    showText(m_failures, failuresText(m_latestFailures));
    QString stopped;
    if (!m_whyStopped.isEmpty() && isGoingOn())
        stopped =
            tr("%1. What has not left yet is not sent; what has been written stays written: %2", "why, devices")
                .arg(m_whyStopped, tr("%Ln device(s)", "that were written to", m_tally.done() - m_tally.unchanged()));
    showText(m_stopped, stopped);
    m_announceSoon->request();
}

void RunProgress::announce()
{
    QStringList texts;
    for (const ElidedLabel *label : {m_counts, m_stopped, m_offline, m_failures})
        if (!label->wholeText().isEmpty())
            texts.append(label->wholeText());
    m_counts->setAccessibleName(texts.join(QStringLiteral(". "))); // which reports a change of the name
}

QString RunProgress::timeText() const
{
    const std::chrono::milliseconds now(m_clock.elapsed());
    if (m_tally.isWaiting(now))
        return tr("waiting for answers");
    const auto left = m_tally.timeLeft(now);
    if (!left)
        return {};
    const auto minutes = std::chrono::duration<double, std::ratio<60>>(*left).count();
    return minutes < 1 ? tr("less than a minute left")
                       : tr("about %Ln minute(s) left", nullptr, int(std::ceil(minutes)));
}

QString RunProgress::countsText() const
{
    QStringList parts{tr("%Ln done", "devices", m_tally.done())};
    if (m_tally.failed() > 0)
        parts.append(tr("%Ln failed", "devices", m_tally.failed()));
    if (m_tally.notReached() > 0)
        parts.append(tr("%Ln not reached", "devices", m_tally.notReached()));
    if (m_tally.stopped() > 0)
        parts.append(tr("%Ln stopped", "devices", m_tally.stopped()));
    parts.append(tr("%Ln left", "devices", m_tally.left()));
    const QString time = timeText();
    if (!time.isEmpty())
        parts.append(time);
    return parts.join(QStringLiteral(", "));
}

QString RunProgress::resultText() const
{
    const QLocale locale;
    QStringList parts{tr("Written: %1", "devices").arg(locale.toString(m_tally.done() - m_tally.unchanged()))};
    if (m_tally.unchanged() > 0) // of an undo nothing was even sent
        parts.append(tr("unchanged: %1", "devices").arg(locale.toString(m_tally.unchanged())));
    if (m_tally.partlyWritten() > 0)
        parts.append(tr("partly written: %1", "devices").arg(locale.toString(m_tally.partlyWritten())));
    if (m_tally.inDoubt() > 0)
        parts.append(tr("perhaps written: %1", "devices").arg(locale.toString(m_tally.inDoubt())));
    parts.append(tr("not written: %1", "devices").arg(locale.toString(m_tally.notWritten())));
    if (m_tally.notReached() > 0)
        parts.append(tr("of these not reached: %1", "devices").arg(locale.toString(m_tally.notReached())));
    const QString result = parts.join(QStringLiteral(", "));
    return m_whyStopped.isEmpty() ? result : tr("%1. %2", "why it has stopped, counts").arg(m_whyStopped, result);
}

} // namespace orda_client
