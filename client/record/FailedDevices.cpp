#include "client/record/FailedDevices.h"

#include "client/form/FormTicks.h"

#include <orda_data/DevsMgrData.h>

#include <QHash>
#include <QWidget>

namespace orda_client {

namespace {

// Two devices may have the same serial number.
QHash<QString, QStringList> listedBySerialNumber(const QWidget *form)
{
    const auto &store = orda_data::DevsMgrData::instance();
    QHash<QString, QStringList> ids;
    const QStringList listed = FormTicks::listedIn(form);
    for (const QString &devId : listed)
        ids[store.getDevInfoById(devId).serialNumber].append(devId);
    return ids;
}

QHash<QString, int> timesInRecord(const QVector<RunEntry> &entries)
{
    QHash<QString, int> times;
    for (const RunEntry &entry : entries)
        ++times[entry.serialNumber];
    return times;
}

QString deviceText(const RunEntry &entry)
{
    QString text = entry.outcome == RunEntry::Unreadable                ? entry.message
                 : entry.name.isEmpty() && entry.serialNumber.isEmpty() ? FailedDevices::tr("a device without a name")
                 : entry.name.isEmpty()                                 ? entry.serialNumber
                 : entry.serialNumber.isEmpty()                         ? entry.name
                                                : QStringLiteral("%1 (%2)").arg(entry.name, entry.serialNumber);
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

FailedDevices::Ticked FailedDevices::tickAgain(QWidget *form, const QVector<RunEntry> &entries)
{
    const QHash<QString, QStringList> listed = listedBySerialNumber(form);
    const QHash<QString, int> times = timesInRecord(entries);
    const auto doubt = [&](const RunEntry &entry) {
        if (entry.outcome == RunEntry::Unreadable)
            return tr("its entry in the record cannot be read");
        if (entry.serialNumber.isEmpty())
            return tr("it has no serial number");
        if (times.value(entry.serialNumber) > 1)
            return tr("several devices of the run have its serial number");
        const int inList = listed.value(entry.serialNumber).size();
        if (inList == 0)
            return tr("it is not in the list now: off line, or not to be configured");
        return inList > 1 ? tr("several devices in the list have its serial number") : QString();
    };

    Ticked result;
    QStringList devIds;
    for (const RunEntry &entry : entries) {
        if (entry.outcome == RunEntry::Succeeded)
            continue;
        const QString why = doubt(entry);
        if (why.isEmpty())
            devIds.append(listed.value(entry.serialNumber).constFirst());
        else
            result.notTicked.append(tr("%1: %2").arg(deviceText(entry), why));
    }
    const FormTicks::Ticked ticked = FormTicks::tickExactly(form, devIds);
    result.count = ticked.count;
    result.isSearchCleared = ticked.isSearchCleared;
    return result;
}

} // namespace orda_client
