#include "client/record/TickReport.h"

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
    , m_notTicked(new QPlainTextEdit(this))
{
    m_text->setObjectName(QStringLiteral("tickReport"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_notTicked->setObjectName(QStringLiteral("tickReportList"));
    m_notTicked->setAccessibleName(tr("Failed devices that are not ticked"));
    m_notTicked->setReadOnly(true);
    m_notTicked->setTabChangesFocus(true);
    m_notTicked->setMaximumHeight(linesShown * fontMetrics().lineSpacing() + edge);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_notTicked);
}

void TickReport::setTicked(const FailedDevices::Ticked &ticked)
{
    const int failed = ticked.count + ticked.notTicked.size();
    QString text = tr("Ticked %1 of %Ln failed device(s) in the device list.", nullptr, failed)
                       .arg(QLocale().toString(ticked.count));
    if (ticked.isSearchCleared)
        text += QLatin1Char(' ') + tr("The list's search was cleared: it hid some of them.");
    if (!ticked.notTicked.isEmpty())
        text += QLatin1Char(' ') + tr("Not ticked:");
    m_text->setText(text);
    m_notTicked->setPlainText(vms_sdk::displayText(ticked.notTicked.join(QLatin1Char('\n')), QStringLiteral("\n")));
    m_notTicked->setVisible(!ticked.notTicked.isEmpty());
}

} // namespace orda_client
