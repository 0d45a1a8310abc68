#include "orda_base/SearchBox.h"

#include "orda_base/Theme.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>

namespace orda_base {

SearchBox::SearchBox(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit(this))
{
    m_edit->setPlaceholderText(tr("Search"));
    m_edit->setAccessibleName(tr("Search"));
    m_edit->setClearButtonEnabled(true);
    m_edit->addAction(QIcon(Theme::image(QStringLiteral("search"))), QLineEdit::LeadingPosition);
    setFocusProxy(m_edit);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &SearchBox::signalSearchByKeyword);
    connect(m_edit, &QLineEdit::returnPressed, this, [this] { emit signalSearchByKeyword(m_edit->text()); });
}

QString SearchBox::text() const
{
    return m_edit->text();
}

} // namespace orda_base
