#include "client/preview/Notice.h"

#include <vms_client_sdk/ForeignText.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int linesShown = 4;
constexpr int edge = 24; // of the list's frame and margins, above and below

} // namespace

Notice::Notice(const QString &listName, QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_lines(new QPlainTextEdit(this))
{
    m_text->setObjectName(QStringLiteral("notice"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_lines->setObjectName(QStringLiteral("noticeList"));
    m_lines->setAccessibleName(listName);
    m_lines->setReadOnly(true);
    m_lines->setTabChangesFocus(true);
    m_lines->setMaximumHeight(linesShown * fontMetrics().lineSpacing() + edge);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_lines);
    hide();
}

void Notice::say(const QString &text, const QStringList &lines)
{
    m_text->setText(text);
    m_lines->setPlainText(vms_sdk::displayText(lines.join(QLatin1Char('\n')), QStringLiteral("\n")));
    m_lines->setVisible(!lines.isEmpty());
    setVisible(!text.isEmpty());
}

} // namespace orda_client
