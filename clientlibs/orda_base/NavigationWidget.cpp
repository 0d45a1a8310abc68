#include "orda_base/NavigationWidget.h"

#include "orda_base/NavigationButton.h"

#include <QVBoxLayout>

namespace orda_base {

NavigationWidget::NavigationWidget(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    NavigationButton::installAccess();
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleName(tr("Navigation"));
    m_layout->setContentsMargins(0, 8, 0, 8);
    m_layout->setSpacing(0);
    m_layout->addStretch();
}

void NavigationWidget::addNavigationBar(const QString &normalIcon, const QString &highlightIcon,
                                        const NavigationActionInfo &info, const QList<NavigationActionInfo> &subActions,
                                        QWidget *owner)
{
    NavigationButton *bar =
        addButton(subActions.isEmpty() ? NavigationButton::Bar : NavigationButton::FoldingBar, info);
    bar->setIcons(QIcon(normalIcon), QIcon(highlightIcon));
    if (subActions.isEmpty()) {
        addEntry(info.key, {bar, bar}, owner);
        return;
    }
    for (const NavigationActionInfo &subAction : subActions)
        addEntry(subAction.key, {addButton(NavigationButton::Entry, subAction), bar}, owner);
    connect(bar, &QAbstractButton::clicked, owner, [this, bar] {
        setUnfolded(bar, !bar->isUnfolded());
        emit signalCurAction(bar->objectName());
    });
}

NavigationButton *NavigationWidget::addButton(int kind, const NavigationActionInfo &info)
{
    auto *button = new NavigationButton(NavigationButton::Kind(kind), info.title, this);
    button->setObjectName(info.key);
    m_layout->insertWidget(m_layout->count() - 1, button); // before the stretch
    // Qt puts new widgets at the end of the window's tab order, but these belong where the navigation stands. The
    // navigation takes the focus for a moment, because setTabOrder() ignores widgets that do not.
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(m_lowest ? static_cast<QWidget *>(m_lowest) : this, button);
    setFocusPolicy(policy);
    m_lowest = button;
    return button;
}

void NavigationWidget::addEntry(const QString &key, const Entry &entry, QWidget *owner)
{
    m_entryByKey.insert(key, entry);
    connect(entry.button, &QAbstractButton::clicked, owner, [this, key] {
        makeCurrent(key);
        emit signalCurAction(key);
    });
}

void NavigationWidget::setUnfolded(NavigationButton *bar, bool unfolded)
{
    bar->setUnfolded(unfolded);
    for (const Entry &entry : qAsConst(m_entryByKey))
        if (entry.bar == bar)
            entry.button->setVisible(unfolded);
}

void NavigationWidget::makeCurrent(const QString &key)
{
    for (const Entry &entry : qAsConst(m_entryByKey)) {
        entry.bar->setHighlighted(false);
        entry.button->setHighlighted(false);
    }
    const Entry current = m_entryByKey.value(key);
    current.bar->setHighlighted(true);
    current.button->setHighlighted(true);
    m_currentKey = key;
}

QString NavigationWidget::setDefaultAction(const QString &key)
{
    const auto entry = m_entryByKey.constFind(key);
    if (entry == m_entryByKey.constEnd())
        return {};
    if (entry->bar != entry->button)
        setUnfolded(entry->bar, true);
    makeCurrent(key);
    return key;
}

} // namespace orda_base
