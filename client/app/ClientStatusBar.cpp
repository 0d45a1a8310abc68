#include "client/app/ClientStatusBar.h"

#include "client/app/DeviceTexts.h"

#include <orda_base/DelayedCall.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>

#include <QAction>
#include <QLabel>
#include <QTextDocument>
#include <QTime>
#include <QToolButton>

#include <chrono>
#include <utility>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// Thousands of devices come online in one go: the bar is brought up to date at most ten times a second.
constexpr auto refreshDelay = 100ms;

} // namespace

ClientStatusBar::ClientStatusBar(QAction *devices, QAction *runs, QWidget *parent)
    : QStatusBar(parent)
    , m_last(new QLabel(this))
    , m_runsBt(new QToolButton(this))
    , m_onlineCount(new QToolButton(this))
    , m_refresh(new orda_base::DelayedCall(
          refreshDelay, [this] { refresh(); }, this))
{
    m_last->setTextFormat(Qt::PlainText); // devices' names
    m_last->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_last, 1);
    runs->setIconText(tr("Runs")); // on the button, without the menu's mnemonic
    m_runsBt->setDefaultAction(runs);
    m_runsBt->setFocusPolicy(Qt::TabFocus);
    m_runsBt->hide();
    addPermanentWidget(m_runsBt);
    buildCount(devices);
    followDevices();
    refresh();
}

void ClientStatusBar::buildCount(QAction *devices)
{
    m_onlineCount->setObjectName(QStringLiteral("onlineCount"));
    m_onlineCount->setAutoRaise(true);
    connect(m_onlineCount, &QToolButton::clicked, devices, &QAction::trigger);
    const auto follow = [this, devices] {
        m_onlineCount->setEnabled(devices->isEnabled());
        m_onlineCount->setFocusPolicy(devices->isEnabled() ? Qt::TabFocus : Qt::NoFocus);
        m_onlineCount->setToolTip(devices->isEnabled() ? devices->statusTip() : QString());
    };
    connect(devices, &QAction::changed, this, follow);
    follow();
    addPermanentWidget(m_onlineCount);
}

void ClientStatusBar::followDevices()
{
    using orda_base::DelayedCall;
    using orda_data::DataSignals;
    const auto &changes = DataSignals::instance();
    connect(&changes, &DataSignals::signalUpdateDevs, m_refresh, &DelayedCall::request);
    connect(&changes, &DataSignals::signalDeleteDevs, m_refresh, &DelayedCall::request);
    connect(&changes, &DataSignals::signalDevStatusChanged, m_refresh, &DelayedCall::request);
    connect(&changes, &DataSignals::signalDevStatusChanged, this,
            [this](const QString &devId, vms_sdk::DevStatus status) {
                // A device that stays offline is dialled again and again, which is not worth a message.
                if (status != vms_sdk::DevConnecting && m_known.value(devId, vms_sdk::DevOffline) != status) {
                    m_known.insert(devId, status);
                    m_lastChanged = devId;
                }
            });
    connect(&changes, &DataSignals::signalDeleteDevs, this, [this](const QStringList &devIds) {
        for (const QString &devId : devIds)
            m_known.remove(devId);
    });
}

void ClientStatusBar::refresh()
{
    const auto &store = orda_data::DevsMgrData::instance();
    const QString devId = std::exchange(m_lastChanged, {});
    const vms_sdk::DevInfo dev = store.getDevInfoById(devId);
    if (!dev.id.isEmpty()) // it may have been removed since
        tell(QStringLiteral("%1: %2").arg(DeviceTexts::name(dev), DeviceTexts::status(store.getDevStatus(devId))));
    m_onlineCount->setText(tr("%1 of %n device(s) online", nullptr, store.devCount(false)).arg(store.devCount(true)));
}

void ClientStatusBar::tell(const QString &text)
{
    const QString line = QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")), text);
    m_last->setText(m_last->fontMetrics().elidedText(line, Qt::ElideRight, m_last->contentsRect().width()));
    m_last->setToolTip(Qt::convertFromPlainText(line, Qt::WhiteSpaceNormal));
    m_last->setAccessibleDescription(line); // as plain text, and whole
}

void ClientStatusBar::offerRuns()
{
    m_runsBt->show();
}

} // namespace orda_client
