#include "client/devices/TickNote.h"

#include "client/devices/DeviceState.h"
#include "client/form/FormTicks.h"

#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QLocale>

namespace orda_client {

TickNote::TickNote(QWidget *form, QWidget *parent)
    : Notice(tr("Devices that are not ticked"), "tickNote", parent)
    , m_form(form)
{
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
    say(text, lines);
}

QString TickNote::whyNotListed(const QString &devId)
{
    const vms_sdk::DevInfo device = orda_data::DevsMgrData::instance().getDevInfoById(devId);
    if (device.id.isEmpty())
        return tr("%1: not in the inventory", "id of a device").arg(vms_sdk::displayText(devId));
    const orda_engine::Reach reach = orda_engine::reachOf(devId);
    const QString why = reach.canBeWritten ? tr("came online just now, and is not in the list yet") : reach.text;
    return tr("%1: %2", "device, why it is not ticked")
        .arg(vms_sdk::displayText(DeviceState::deviceName(device)), vms_sdk::displayText(why));
}

} // namespace orda_client
