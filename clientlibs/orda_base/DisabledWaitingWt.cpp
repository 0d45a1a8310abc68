#include "orda_base/DisabledWaitingWt.h"

#include "orda_base/DisabledWaitingWtManager.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <chrono>

namespace orda_base {

namespace {

constexpr QColor veil(20, 30, 45, 90);
constexpr int cardMinWidth = 260;
constexpr int cardMargin = 24;
constexpr std::chrono::milliseconds updateInterval{40};
constexpr std::chrono::milliseconds announceInterval{2000}; // a screen reader needs that long for one text

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
        return true;
    default:
        return false;
    }
}

} // namespace

DisabledWaitingWt::DisabledWaitingWt(QWidget *parent, const QString &description, const QString &text, bool flag)
    : QWidget(parent)
    , m_uuid(QUuid::createUuid())
    , m_keepsBright(flag)
    , m_card(new QWidget(this))
    , m_text(description)
    , m_description(new QLabel(description, m_card))
{
    m_showSoon.setSingleShot(true);
    m_showSoon.setInterval(updateInterval);
    connect(&m_showSoon, &QTimer::timeout, this, [this] {
        m_description->setText(m_text);
        if (!m_announceSoon.isActive())
            m_announceSoon.start();
    });
    m_announceSoon.setSingleShot(true);
    m_announceSoon.setInterval(announceInterval);
    connect(&m_announceSoon, &QTimer::timeout, this, &DisabledWaitingWt::announce);
    setObjectName(QStringLiteral("disabledWaitingWt"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(description);
    m_card->setObjectName(QStringLiteral("waitingCard"));
    m_card->setProperty("page_card", true);
    m_card->setMinimumWidth(cardMinWidth);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setAlignment(Qt::AlignCenter);

    auto *busy = new QProgressBar(m_card);
    busy->setRange(0, 0); // something goes on, nobody knows for how long
    busy->setTextVisible(false);
    auto *cardLayout = new QVBoxLayout(m_card);
    cardLayout->setContentsMargins(cardMargin, cardMargin, cardMargin, cardMargin);
    cardLayout->setSpacing(cardMargin / 2);
    cardLayout->addWidget(m_description);
    if (!text.isEmpty()) {
        auto *hint = new QLabel(text, m_card);
        hint->setTextFormat(Qt::PlainText);
        hint->setAlignment(Qt::AlignCenter);
        cardLayout->addWidget(hint);
    }
    cardLayout->addWidget(busy);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_card, 0, Qt::AlignCenter);

    if (parent) {
        parent->installEventFilter(this);
        setGeometry(parent->rect());
    }
    DisabledWaitingWtManager::instance().add(this);
}

DisabledWaitingWt::~DisabledWaitingWt()
{
    DisabledWaitingWtManager::instance().remove(m_uuid);
}

QUuid DisabledWaitingWt::getUuid() const
{
    return m_uuid;
}

void DisabledWaitingWt::updateDescription(const QString &description)
{
    m_text = description;
    if (!m_showSoon.isActive())
        m_showSoon.start();
}

void DisabledWaitingWt::announce()
{
    setAccessibleName(m_text); // which reports a change of the name
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool DisabledWaitingWt::event(QEvent *event)
{
    if (isInput(event->type())) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool DisabledWaitingWt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget()) {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
    } else if (event->type() == QEvent::Shortcut && coversShortcut(qobject_cast<QShortcut *>(watched))) {
        return true;
    } else if (covers(qobject_cast<QWidget *>(watched))) {
        // Some events reach the covered widgets directly: of a grabbed mouse, of a button's mnemonic, and of a focus
        // that a program has set.
        if (event->type() == QEvent::FocusIn) {
            setFocus();
        } else if (event->type() == QEvent::Shortcut || event->type() == QEvent::ShortcutOverride
                   || isInput(event->type())) {
            event->accept();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool DisabledWaitingWt::covers(const QWidget *widget) const
{
    return widget && parentWidget() && parentWidget()->isAncestorOf(widget) && widget != this && !isAncestorOf(widget);
}

bool DisabledWaitingWt::coversShortcut(const QShortcut *shortcut) const
{
    const QWidget *owner = shortcut ? shortcut->parentWidget() : nullptr;
    return owner && (owner == parentWidget() || covers(owner));
}

bool DisabledWaitingWt::focusNextPrevChild(bool)
{
    return true; // the focus stays here
}

void DisabledWaitingWt::paintEvent(QPaintEvent *)
{
    if (!m_keepsBright)
        QPainter(this).fillRect(rect(), veil);
}

void DisabledWaitingWt::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_focusBefore = window()->focusWidget();
    raise();
    setFocus();
    qApp->installEventFilter(this);
    announce();
}

void DisabledWaitingWt::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    const QWidget *focus = window()->focusWidget();
    if (m_focusBefore && (!focus || focus == this))
        m_focusBefore->setFocus();
    QWidget::hideEvent(event);
}

} // namespace orda_base
