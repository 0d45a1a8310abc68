#include "orda_base/SearchBox.h"

#include "orda_base/Theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace orda_base {

SearchBox::SearchBox(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit(this))
{
    m_edit->setPlaceholderText(tr("Search"));
    m_edit->setAccessibleName(tr("Search"));
    const QAction *search =
        m_edit->addAction(QIcon(Theme::image(QStringLiteral("search"))), QLineEdit::LeadingPosition);
    nameIcon(tr("Start search"));
    m_edit->setClearButtonEnabled(true);
    nameIcon(tr("Clear search"));
    m_edit->installEventFilter(this);
    setFocusProxy(m_edit);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &SearchBox::signalSearchByKeyword);
    const auto searchAgain = [this] { emit signalSearchByKeyword(m_edit->text()); };
    connect(search, &QAction::triggered, this, searchAgain);
}

void SearchBox::nameIcon(const QString &name)
{
    const auto icons = m_edit->findChildren<QToolButton *>();
    for (QToolButton *icon : icons)
        if (icon->accessibleName().isEmpty())
            icon->setAccessibleName(name);
}

QString SearchBox::text() const
{
    return m_edit->text();
}

bool SearchBox::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (event->type() != QEvent::ShortcutOverride && !isPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    // While the line is empty, Esc goes to the window, which may be a dialog that closes.
    if (key == Qt::Key_Escape && !m_edit->text().isEmpty()) {
        if (isPress)
            m_edit->clear();
        event->accept();
        return true;
    }
    if (isPress && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        emit signalSearchByKeyword(m_edit->text());
        return true; // otherwise a dialog around it would press its default button
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orda_base
