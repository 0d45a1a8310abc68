#include "batch/DeviceResults.h"

#include "batch/CommandInput.h"
#include "engine/ChangeTexts.h"
#include "engine/DevicePlan.h"
#include "engine/DeviceUndo.h"
#include "engine/Reach.h"

#include <orda_data/DevsMgrData.h>
#include <run/CfgFamily.h>

#include <QCoreApplication>

namespace orda_batch {

using orda_batchCfg::CfgFamily;
using orda_batchCfg::MemberChange;
using orda_engine::DeviceReading;
using orda_engine::MemberDifference;
using orda_engine::Selection;
using orda_journal::Outcome;
using vms_sdk::DevInfo;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::DeviceResults)
};

DeviceResult resultOf(const DevInfo &device, Outcome outcome, const QString &message)
{
    // One that the inventory does not name is what the device itself has told, as the history has it.
    const QString serialNumber = device.serialNumber.isEmpty()
                                   ? orda_data::DevsMgrData::instance().getDevInfoById(device.id).serialNumber
                                   : device.serialNumber;
    return {device.id, serialNumber, device.name, device.ip, outcome, 0, message};
}

void setChanges(DeviceResult *result, const QVector<MemberChange> &changes)
{
    for (const MemberChange &change : changes)
        result->changes.append({change.member, change.before, change.after});
}

/// The keys that were asked for and that no write had, as the device does not have them.
QStringList lackingIn(const Selection &selection, const orda_journal::Settled &settled)
{
    const CfgFamily &family = *selection.family;
    const QString devId = settled.row.devId;
    const QVector<int> exchanges = family.exchangesOf(selection.flagsOf(devId));
    QStringList lacking, written;
    for (const int place : exchanges) {
        const orda_batchCfg::CfgExchange &exchange = family.exchanges.at(place);
        lacking += exchange.askedBy(selection.valuesOf(devId)).keys();
        const QStringList sent = exchange.settings(settled.sent.value(place)).keys();
        for (const QString &member : sent)
            written.append(exchange.nameInValues(member));
    }
    lacking.removeDuplicates();
    for (const QString &name : qAsConst(written))
        lacking.removeAll(name);
    return lacking;
}

} // namespace

DeviceResult stoppedResult(const DevInfo &device, const QString &why)
{
    DeviceResult result = resultOf(device, Outcome::Stopped, why);
    result.code = orda_journal::StoppedCode;
    return result;
}

DeviceResult notReachedResult(const DevInfo &device, const orda_engine::Reach &reach)
{
    DeviceResult result = resultOf(device, Outcome::NotReached, reach.text);
    result.reason = orda_engine::reachName(reach.reason);
    return result;
}

DeviceResult appliedResult(const DevInfo &device, const orda_journal::Settled &settled, const Selection &selection)
{
    DeviceResult result = writtenResult(device, settled);
    if (result.outcome == Outcome::Done || result.outcome == Outcome::Unchanged || result.outcome == Outcome::Differs)
        result.lacking = lackingIn(selection, settled);
    return result;
}

DeviceResult writtenResult(const DevInfo &device, const orda_journal::Settled &settled)
{
    DeviceResult result = resultOf(device, *settled.row.outcome, settled.row.message);
    result.code = settled.row.code;
    if (result.outcome == Outcome::NotReached)
        result.reason = orda_engine::reachName(orda_engine::reachOf(device.id).reason);
    setChanges(&result, settled.changes);
    return result;
}

DeviceResult readingResult(const DevInfo &device, const DeviceReading &reading)
{
    if (!reading.reach.canBeWritten)
        return notReachedResult(device, reading.reach);
    const Outcome outcome = reading.code == 0                         ? Outcome::Done
                          : reading.code == orda_journal::StoppedCode ? Outcome::Stopped
                                                                      : Outcome::Failed;
    DeviceResult result = resultOf(device, outcome, reading.message);
    result.code = reading.code;
    return result;
}

DeviceResult heldResult(const DevInfo &device, const DeviceReading &reading, const KeyTable &keys, bool isWhole)
{
    DeviceResult result = readingResult(device, reading);
    if (!reading.isRead())
        return result;
    QJsonObject members;
    for (auto held = reading.held.begin(); held != reading.held.end(); ++held) {
        const QJsonObject ofExchange = keys.family().exchanges.at(held.key()).membersOf(*held);
        for (auto member = ofExchange.begin(); member != ofExchange.end(); ++member)
            if (!members.contains(member.key())) // where two exchanges have one key, the first one's stands
                members.insert(member.key(), *member);
    }
    const QStringList shown = isWhole ? members.keys() : keys.membersWithKey(members.keys());
    for (const QString &member : shown)
        result.values.insert(member, members.value(member));
    return result;
}

DeviceResult planResult(const DevInfo &device, const DeviceReading &reading, const Selection &selection)
{
    DeviceResult result = readingResult(device, reading);
    if (!reading.isRead())
        return result;
    const orda_engine::DevicePlan plan = selection.planOf(device.id, reading.held);
    setChanges(&result, plan.changes + plan.added);
    result.lacking = plan.lacking;
    result.outcome = result.changes.isEmpty() ? Outcome::Unchanged : Outcome::Differs;
    result.message = result.changes.isEmpty() ? Texts::tr("nothing to change") : QString();
    return result;
}

DeviceResult verifiedResult(const DevInfo &device, const DeviceReading &reading, const CommandInput &input)
{
    DeviceResult result = readingResult(device, reading);
    if (!reading.isRead())
        return result;
    const Selection &selection = input.selection();
    const auto &details = input.runDetails();
    const QVector<MemberDifference> differences = details ? input.run().differences(device.id, reading.held)
                                                          : selection.differencesOf(device.id, {}, reading.held);
    for (const MemberDifference &difference : differences)
        result.changes.append({difference.member, difference.found, difference.wanted});
    result.outcome = differences.isEmpty() ? Outcome::Done : Outcome::Differs;
    if (!details)
        result.lacking = selection.planOf(device.id, reading.held).lacking;
    if (!differences.isEmpty())
        result.message = orda_engine::textOf(differences);
    else
        result.message = result.lacking.isEmpty() ? Texts::tr("as it should be") : QString();
    return result;
}

DeviceResult undoPlanResult(const DevInfo &device, const DeviceReading &reading, const orda_engine::RecordedRun &run,
                            bool isForced)
{
    DeviceResult result = readingResult(device, reading);
    if (!reading.isRead())
        return result;
    const CfgFamily &family = *run.written().family;
    const orda_engine::RecordedDevice recorded = run.device(device.id);
    const orda_engine::DeviceUndo undo =
        orda_engine::undoOf(family, recorded.before, recorded.sent, reading.held, isForced);
    for (auto exchange = undo.begin(); exchange != undo.end(); ++exchange) {
        const QJsonObject held = family.exchanges.at(exchange.key()).membersOf(reading.held.value(exchange.key()));
        for (auto member = exchange->goBack.begin(); member != exchange->goBack.end(); ++member)
            result.changes.append({member.key(), held.value(member.key()), *member});
    }
    result.outcome = result.changes.isEmpty() ? Outcome::Unchanged : Outcome::Differs;
    result.message = orda_engine::textOfLeft(undo);
    return result;
}

} // namespace orda_batch
