#include "client/tables/TableOrText.h"

#include <vms_client_sdk/ForeignText.h>

#include <QLabel>
#include <QTableView>

namespace orda_client {

namespace {

constexpr int margin = 12;

} // namespace

TableOrText::TableOrText(QTableView *table, const QString &name, QWidget *parent)
    : QStackedWidget(parent)
    , m_table(table)
    , m_text(new QLabel)
{
    m_text->setObjectName(name);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setMargin(margin);
    addWidget(m_table);
    addWidget(m_text);
}

void TableOrText::update(const QString &emptyText)
{
    m_text->setText(vms_sdk::displayText(emptyText, QStringLiteral("\n")));
    setCurrentIndex(hasRows() ? 0 : 1);
}

bool TableOrText::hasRows() const
{
    return m_table->model()->rowCount() > 0;
}

} // namespace orda_client
