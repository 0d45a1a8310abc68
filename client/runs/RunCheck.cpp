#include "client/runs/RunCheck.h"

#include "engine/DeviceUndo.h"

#include <run/CfgFamily.h>

#include <QSet>

namespace orda_client {

using orda_engine::DeviceReading;
using orda_engine::MemberDifference;
using orda_engine::ObjectsByExchange;

QString CheckedDevice::stateText(State state)
{
    switch (state) {
    case Differs:
        return RunCheck::tr("Differs");
    case IsWrittenOver:
        return RunCheck::tr("Is written over");
    case GoesBack:
        return RunCheck::tr("Goes back");
    case GoesBackInPart:
        return RunCheck::tr("Goes back in part");
    case Stays:
        return RunCheck::tr("Stays as it is");
    case NotRead:
        return RunCheck::tr("Not read");
    case NotReached:
        return RunCheck::tr("Not reached");
    case Replaced:
        return RunCheck::tr("Another device");
    case AlreadyBack:
        return RunCheck::tr("Already back");
    case AsWritten:
        return RunCheck::tr("As written");
    }
    return {};
}

QVector<CheckedDevice> RunCheck::devices(const QStringList &devIds, const QHash<QString, DeviceReading> &readings) const
{
    const QSet<QString> isMeant(devIds.begin(), devIds.end());
    QVector<CheckedDevice> checked;
    for (const RunDevice &recorded : run->devices) {
        if (!isMeant.contains(recorded.row.devId))
            continue;
        CheckedDevice device;
        device.row = recorded.row;
        const auto reading = readings.constFind(recorded.row.devId);
        if (reading == readings.constEnd()) {
            device.state = CheckedDevice::Replaced;
            device.note = tr("its serial number is another one by now: it is left out");
        } else if (!reading->reach.canBeWritten) {
            device.state = CheckedDevice::NotReached;
            device.note = reading->reach.text;
        } else if (!reading->isRead()) {
            device.state = CheckedDevice::NotRead;
            device.note = reading->message;
        } else if (kind == Verify) {
            verify(&device, reading->held);
        } else {
            takeBack(&device, reading->held);
        }
        checked.append(device);
    }
    return checked;
}

void RunCheck::verify(CheckedDevice *device, const ObjectsByExchange &held) const
{
    const QString family = run->line.run.family;
    QVector<orda_batchCfg::MemberChange> changes;
    const auto differences = run->recorded.differences(device->row.devId, held);
    for (const MemberDifference &difference : differences)
        changes.append({difference.exchange, difference.member, difference.wanted, difference.found});
    device->state = changes.isEmpty() ? CheckedDevice::AsWritten : CheckedDevice::Differs;
    device->changes = texts.changes(family, changes);
}

void RunCheck::takeBack(CheckedDevice *device, const ObjectsByExchange &held) const
{
    const orda_batchCfg::CfgFamily &family = *run->recorded.written().family;
    const orda_engine::RecordedDevice recorded = run->recorded.device(device->row.devId);
    const orda_engine::DeviceUndo undo = orda_engine::undoOf(family, recorded.before, recorded.sent, held, force);
    QVector<orda_batchCfg::MemberChange> back, over, kept, stuck;
    for (auto exchange = undo.begin(); exchange != undo.end(); ++exchange) {
        const int place = exchange.key();
        const QJsonObject now = family.exchanges.at(place).membersOf(held.value(place));
        QSet<QString> changedSince;
        for (const MemberDifference &difference : exchange->changedSince) {
            changedSince.insert(difference.member);
            if (!exchange->goBack.contains(difference.member))
                kept.append({place, difference.member, difference.wanted, difference.found});
        }
        for (auto member = exchange->goBack.begin(); member != exchange->goBack.end(); ++member)
            (changedSince.contains(member.key()) ? over : back)
                .append({place, member.key(), now.value(member.key()), *member});
        for (const MemberDifference &difference : exchange->notRemovable)
            stuck.append({place, difference.member, difference.wanted, difference.found});
    }
    device->isChangedSince = !over.isEmpty() || !kept.isEmpty();
    const bool isLeft = !kept.isEmpty() || !stuck.isEmpty();
    const bool isWritten = !back.isEmpty();
    device->state = !over.isEmpty() ? CheckedDevice::IsWrittenOver
                  : !isWritten      ? (isLeft ? CheckedDevice::Stays : CheckedDevice::AlreadyBack)
                  : isLeft          ? CheckedDevice::GoesBackInPart
                                    : CheckedDevice::GoesBack;
    const QString name = run->line.run.family;
    device->changes = texts.changes(name, back + over);
    QStringList notes;
    if (!over.isEmpty())
        notes.append(tr("changed since and written over: %1").arg(texts.changes(name, over)));
    if (!kept.isEmpty())
        notes.append(tr("changed since and left: %1").arg(texts.changes(name, kept)));
    if (!stuck.isEmpty())
        notes.append(tr("not there before and cannot be taken out: %1").arg(texts.changes(name, stuck)));
    device->note = notes.join(QStringLiteral(". "));
}

} // namespace orda_client
