#include "client/TickReport.h"

#include <vms_client_sdk/ForeignText.h>

#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int linesShown = 5;
constexpr int edge = 24; // of the list's frame and margins, above and below

} // namespace

TickReport::TickReport(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_left(new QPlainTextEdit(this))
{
    m_text->setObjectName(QStringLiteral("tickReport"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_left->setObjectName(QStringLiteral("tickReportList"));
    m_left->setAccessibleName(tr("Failed devices that are not ticked"));
    m_left->setReadOnly(true);
    m_left->setTabChangesFocus(true);
    m_left->setMaximumHeight(linesShown * fontMetrics().lineSpacing() + edge);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_left);
}

void TickReport::setTicked(const FailedDevices::Ticked &ticked)
{
    const int failed = ticked.count + ticked.left.size();
    QString text = tr("Ticked %1 of %Ln failed device(s) in the device list.", nullptr, failed)
                       .arg(QLocale().toString(ticked.count));
    if (ticked.isSearchCleared)
        text += QLatin1Char(' ') + tr("The list's search was cleared: it hid some of them.");
    if (!ticked.left.isEmpty())
        text += QLatin1Char(' ') + tr("Not ticked:");
    m_text->setText(text);
    m_left->setPlainText(vms_sdk::displayText(ticked.left.join(QLatin1Char('\n')), QStringLiteral("\n")));
    m_left->setVisible(!ticked.left.isEmpty());
}

} // namespace orda_client
