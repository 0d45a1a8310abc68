#include "client/common/Notice.h"

#include "client/common/Widgets.h"
#include <vms_client_sdk/ForeignText.h>

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int linesShown = 4;
constexpr int edge = 24; // of the list's frame and margins, above and below

} // namespace

Notice::Notice(const QString &listName, const char *name, QWidget *parent)
    : QWidget(parent)
    , m_text(plainLabel(name))
    , m_lines(new QPlainTextEdit(this))
{
    m_lines->setObjectName(QLatin1String(name) + QStringLiteral("List"));
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
    m_text->setText(vms_sdk::displayText(text));
    m_lines->setPlainText(vms_sdk::displayText(lines.join(QLatin1Char('\n')), QStringLiteral("\n")));
    m_lines->setVisible(!lines.isEmpty());
    setVisible(!text.isEmpty());
}

} // namespace orda_client
