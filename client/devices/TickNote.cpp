#include "client/devices/TickNote.h"

#include "client/devices/DeviceState.h"
#include "client/form/FormTicks.h"

#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int linesShown = 4;
constexpr int edge = 24; // of the list's frame and margins, above and below

} // namespace

TickNote::TickNote(QWidget *form, QWidget *parent)
    : QWidget(parent)
    , m_form(form)
    , m_text(new QLabel(this))
    , m_lines(new QPlainTextEdit(this))
{
    m_text->setObjectName(QStringLiteral("tickNote"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_lines->setObjectName(QStringLiteral("notTicked"));
    m_lines->setAccessibleName(tr("Devices that are not ticked"));
    m_lines->setReadOnly(true);
    m_lines->setTabChangesFocus(true);
    m_lines->setMaximumHeight(linesShown * fontMetrics().lineSpacing() + edge);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_lines);
    hide();
}

void TickNote::tick(const QStringList &devIds, const QStringList &replaced)
{
    if (!m_form)
        return tell(tr("The form is closed. Nothing was ticked."));
    if (FormTicks::runOverlay(m_form))
        return tell(tr("A run is going on. Until it has ended nothing is ticked."));
    const FormTicks::Ticked ticked = FormTicks::tickExactly(m_form, devIds);
    QString text = tr("Ticked %1 of %Ln device(s) in the device list, and no others.", nullptr,
                      ticked.count + ticked.notListed.size() + replaced.size())
                       .arg(QLocale().toString(ticked.count));
    if (ticked.isSearchCleared)
        text += QLatin1Char(' ') + tr("The list's search was cleared: it hid some of them.");
    if (!ticked.notListed.isEmpty() || !replaced.isEmpty())
        text += QLatin1Char(' ') + tr("Not ticked:");
    QStringList lines;
    for (const QString &devId : ticked.notListed)
        lines.append(whyNotListed(devId));
    for (const QString &devId : replaced) {
        const vms_sdk::DevInfo now = orda_data::DevsMgrData::instance().getDevInfoById(devId);
        lines.append(tr("%1: it is another device than was saved", "device")
                         .arg(vms_sdk::displayText(DeviceState::deviceName(now))));
    }
    setText(text, lines);
}

void TickNote::tell(const QString &text)
{
    setText(text, {});
}

void TickNote::setText(const QString &text, const QStringList &lines)
{
    m_text->setText(vms_sdk::displayText(text));
    m_lines->setPlainText(lines.join(QLatin1Char('\n')));
    m_lines->setVisible(!lines.isEmpty());
    setVisible(true);
}

QString TickNote::whyNotListed(const QString &devId)
{
    const vms_sdk::DevInfo device = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    if (device.id.isEmpty())
        return tr("%1: not in the inventory", "id of a device").arg(vms_sdk::displayText(devId));
    const orda_engine::Reach reach = orda_engine::reachOf(devId);
    const QString why = reach.canBeWritten ? tr("came on line just now, and is not in the list yet") : reach.text;
    return tr("%1: %2", "device, why it is not ticked")
        .arg(vms_sdk::displayText(DeviceState::deviceName(device)), vms_sdk::displayText(why));
}

} // namespace orda_client
