#include "orda_base/NavigationButton.h"

#include "orda_base/ReturnPressesButton.h"
#include "orda_base/Theme.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

namespace orda_base {

namespace {

constexpr int barHeight = 48;
constexpr int entryHeight = 40;
constexpr int iconPixels = 24;
constexpr int iconLeft = 14;
constexpr int textLeft = 48; // the same for bars and entries, so that their texts align
constexpr int markWidth = 3;
constexpr int textRight = 8;
constexpr int arrowRight = 18;
constexpr int arrowSize = 5;
constexpr int textFlags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap; // a long text takes two lines

// The icons of modules are drawn for light windows, so on dark ones only their shape is kept.
QPixmap inColour(QPixmap icon, const QColor &colour)
{
    QPainter painter(&icon);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(icon.rect(), colour);
    return icon;
}

/// Tells which entry is open, as of the tabs of pages, and whether a folding bar shows its entries.
class NavigationButtonAccess : public QAccessibleWidget
{
public:
    explicit NavigationButtonAccess(NavigationButton *button)
        : QAccessibleWidget(button,
                            button->kind() == NavigationButton::FoldingBar ? QAccessible::Button : QAccessible::PageTab)
        , m_button(button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (m_button->kind() == NavigationButton::FoldingBar) {
            state.expandable = true;
            state.expanded = m_button->isUnfolded();
            state.collapsed = !m_button->isUnfolded();
        } else {
            state.selectable = true;
            state.selected = m_button->isHighlighted();
        }
        return state;
    }

    QStringList actionNames() const override { return QStringList{pressAction()} + QAccessibleWidget::actionNames(); }

    void doAction(const QString &name) override
    {
        if (name == pressAction() && m_button->isEnabled())
            m_button->animateClick();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    NavigationButton *m_button;
};

QAccessibleInterface *makeAccess(const QString &className, QObject *object)
{
    if (className == QLatin1String("orda_base::NavigationButton"))
        return new NavigationButtonAccess(qobject_cast<NavigationButton *>(object));
    if (className == QLatin1String("orda_base::NavigationWidget"))
        return new QAccessibleWidget(qobject_cast<QWidget *>(object), QAccessible::PageTabList);
    return nullptr;
}

void reportState(NavigationButton *button, QAccessible::State changed)
{
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

NavigationButton::NavigationButton(Kind kind, const QString &title, QWidget *parent)
    : QAbstractButton(parent)
    , m_kind(kind)
{
    setText(title);
    setAccessibleName(title);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    new ReturnPressesButton(this);
}

void NavigationButton::installAccess()
{
    QAccessible::installFactory(makeAccess); // does nothing when it is there already
}

void NavigationButton::setIcons(const QIcon &normal, const QIcon &highlighted)
{
    m_normal = normal;
    m_highlighted = highlighted;
    update();
}

void NavigationButton::setHighlighted(bool highlighted)
{
    if (std::exchange(m_isHighlighted, highlighted) != highlighted && m_kind != FoldingBar) {
        QAccessible::State changed;
        changed.selected = true;
        reportState(this, changed);
    }
    update();
}

void NavigationButton::setUnfolded(bool unfolded)
{
    if (std::exchange(m_isUnfolded, unfolded) != unfolded) {
        QAccessible::State changed;
        changed.expanded = true;
        reportState(this, changed);
    }
    update();
}

QSize NavigationButton::sizeHint() const
{
    return {textLeft + fontMetrics().horizontalAdvance(text()) + 2 * arrowRight,
            m_kind == Entry ? entryHeight : barHeight};
}

QRect NavigationButton::textRect() const
{
    const int right = m_kind == FoldingBar ? 2 * arrowRight : textRight;
    return {textLeft, 0, width() - textLeft - right, height()};
}

bool NavigationButton::isTextWhole() const
{
    const QRect room = textRect();
    return room.contains(fontMetrics().boundingRect(room, textFlags, text()));
}

bool NavigationButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(isTextWhole() ? QString() : text());
    return QAbstractButton::event(event);
}

void NavigationButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        moveFocus(event->key() == Qt::Key_Down);
    else
        QAbstractButton::keyPressEvent(event);
}

void NavigationButton::moveFocus(bool down) const
{
    NavigationButton *nearest = nullptr;
    const auto buttons = parentWidget()->findChildren<NavigationButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (NavigationButton *button : buttons) {
        const bool isFurther = down ? button->y() > y() : button->y() < y();
        const bool isNearer = !nearest || qAbs(button->y() - y()) < qAbs(nearest->y() - y());
        if (isFurther && isNearer && button->isVisible() && button->isEnabled())
            nearest = button;
    }
    if (nearest)
        nearest->setFocus(down ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void NavigationButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight);
    const bool isCurrent = m_isHighlighted && m_kind != FoldingBar;

    QColor background = accent;
    background.setAlphaF(isCurrent ? 0.12 : underMouse() || isDown() ? 0.06 : 0.0);
    painter.fillRect(rect(), background);
    if (isCurrent)
        painter.fillRect(0, 0, markWidth, height(), accent);
    if (hasFocus()) {
        painter.setPen(accent);
        painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    }

    const QIcon &icon = m_isHighlighted ? m_highlighted : m_normal;
    const QRect iconRect(iconLeft, (height() - iconPixels) / 2, iconPixels, iconPixels);
    if (!Theme::isDark(palette()))
        icon.paint(&painter, iconRect);
    else if (!icon.isNull())
        painter.drawPixmap(iconRect, inColour(icon.pixmap(window()->windowHandle(), iconRect.size()),
                                              m_isHighlighted ? accent : palette().color(QPalette::WindowText)));

    painter.setPen(isCurrent ? accent : palette().color(QPalette::WindowText));
    painter.drawText(textRect(), textFlags,
                     isTextWhole() ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, textRect().width()));

    if (m_kind == FoldingBar) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF centre(width() - arrowRight, height() / 2.0);
        const qreal rise = m_isUnfolded ? arrowSize / 2.0 : -arrowSize / 2.0;
        const QPointF tip = centre - QPointF(0, rise);
        painter.drawLine(centre + QPointF(-arrowSize, rise), tip);
        painter.drawLine(tip, centre + QPointF(arrowSize, rise));
    }
}

} // namespace orda_base
