#include "batch/CommandInput.h"

#include "batch/BatchExit.h"
#include "batch/EndedBySignals.h"
#include "batch/RecordedRuns.h"
#include "engine/Reach.h"
#include "fleet/EmbeddedFleet.h"
#include "journal/HistoryReader.h"

#include <families/Families.h>
#include <vms_client_sdk/Inventory.h>

#include <algorithm>
#include <iterator>

namespace orda_batch {

using vms_sdk::DevInfo;

CommandInput::CommandInput(const BatchOptions &options, const orda_journal::HistoryOptions &history)
    : m_options(options)
    , m_history(history)
{
}

CommandInput::~CommandInput() = default;

bool CommandInput::fail(const QString &error, int exitCode)
{
    m_errors.append(error);
    m_exitCode = exitCode;
    return false;
}

bool CommandInput::fail(const DeviceSelection::Selected &selected)
{
    return fail(tr("--devices: %1").arg(selected.error), m_isHistoryUnreadable ? int(ExitHistory)
                                                         : selected.isEmpty    ? orda_programs::ExitNoDevice
                                                                               : orda_programs::ExitInput);
}

bool CommandInput::read()
{
    if (!m_options.run.isEmpty() && !readRun())
        return false;
    if (!m_options.family.isEmpty()) {
        m_selection.family = orda_batchCfg::Families::find(m_options.family);
        m_keys.emplace(*m_selection.family, m_options.isUnchecked);
    }
    return readDevices() && readValues() && chooseCandidates();
}

bool CommandInput::readRun()
{
    orda_journal::HistoryReader reader(m_history);
    QString error;
    m_runDetails = RecordedRuns::find(&reader, m_options.run, &error);
    if (!m_runDetails)
        return fail(error, reader.error().isEmpty() ? int(orda_programs::ExitInput) : int(ExitHistory));
    m_run.emplace(*m_runDetails);
    if (!m_run->error().isEmpty()) {
        const bool isNothingWritten = m_run->written().family && !m_runDetails->run.isUnderWay;
        return fail(m_run->error(), isNothingWritten ? orda_programs::ExitNoDevice : orda_programs::ExitInput);
    }
    m_selection = m_run->written();
    m_keys.emplace(*m_selection.family, m_options.isUnchecked);
    return true;
}

bool CommandInput::readDevices()
{
    QString error;
    if (m_options.demoDevices > 0) {
        m_demo = device_fleet::EmbeddedFleet::startDemo(m_options.demoDevices, m_options.faultsFile, &m_notes, &error,
                                                        m_options.demoCameras);
        if (m_demo)
            m_inventory = m_demo->inventory();
    } else {
        const EndedBySignals whileItReads;
        const vms_sdk::Inventory inventory = vms_sdk::readInventory(m_options.inventoryFile);
        m_notes += inventory.warnings;
        m_inventory = inventory.devices;
        error = inventory.error;
    }
    if (!error.isEmpty())
        return fail(error, orda_programs::ExitInput);
    for (const DevInfo &device : qAsConst(m_inventory))
        m_deviceById.insert(device.id, device);
    const QString terms = m_options.devices.isEmpty() ? QStringLiteral("all") : m_options.devices;
    m_terms = DeviceSelection::parse(terms, &error);
    return error.isEmpty() || fail(tr("--devices: %1").arg(error), orda_programs::ExitInput);
}

bool CommandInput::readValues()
{
    if (m_options.settings.isEmpty() && m_options.valuesFile.isEmpty())
        return true;
    m_wanted = m_options.valuesFile.isEmpty() ? WantedValues::fromSettings(m_options.settings, *m_keys)
                                              : WantedValues::fromFile(m_options.valuesFile, *m_keys);
    m_wanted.assignTo(m_inventory);
    if (!m_wanted.errors.isEmpty()) {
        m_errors += m_wanted.errors;
        m_exitCode = orda_programs::ExitInput;
        return false;
    }
    if (m_wanted.rowsWithoutValues() > 0)
        m_notes.append(tr("%n row(s) of %1 give no value and are left out", nullptr, m_wanted.rowsWithoutValues())
                           .arg(m_options.valuesFile));
    m_selection.values = m_wanted.values();
    m_selection.ownValues = m_wanted.ownValues();
    return true;
}

DeviceSelection::Knowledge CommandInput::knowledge()
{
    const auto isOffered = [](const QString &devId) { return orda_engine::reachOf(devId).canBeWritten; };
    return {isOffered, [this](const QString &run, QString *error) { return failedIn(run, error); }};
}

QStringList CommandInput::failedIn(const QString &run, QString *error)
{
    if (m_failedIn.contains(run))
        return m_failedIn.value(run);
    orda_journal::HistoryReader reader(m_history);
    const auto details = RecordedRuns::find(&reader, run, error);
    m_isHistoryUnreadable = m_isHistoryUnreadable || !reader.error().isEmpty();
    if (!details)
        return {};
    QStringList failed = RecordedRuns::failedIn(*details);
    *error = replacedIn(*details, failed);
    if (!error->isEmpty())
        return {};
    m_failedIn.insert(run, failed);
    return failed;
}

/// Whether the values, or the run, say which devices are meant, and nothing else does.
bool CommandInput::areAllNamed() const
{
    return m_options.devices.isEmpty() && (m_wanted.isByDevice() || m_run);
}

/// Those of the devices that the values, or the run, are of.
QStringList CommandInput::narrowed(const QStringList &devIds) const
{
    if (!m_wanted.isByDevice() && !m_run)
        return devIds;
    QStringList named = m_run ? m_run->written().devIds : m_wanted.devIds();
    if (areAllNamed())
        return named;
    const QSet<QString> isNamed(named.begin(), named.end());
    QStringList both;
    std::copy_if(devIds.begin(), devIds.end(), std::back_inserter(both),
                 [&isNamed](const QString &devId) { return isNamed.contains(devId); });
    return both;
}

/// Whether a run had another device under one of these ids: it was replaced since, or the inventory is of another site
/// that counts its devices alike. @return which, for the user; empty when none
QString CommandInput::replacedIn(const orda_journal::RunDetails &run, const QStringList &devIds) const
{
    const QSet<QString> isMeant(devIds.begin(), devIds.end());
    for (const orda_journal::DeviceRow &row : run.devices) {
        const QString serialNumber = m_deviceById.value(row.devId).serialNumber;
        if (isMeant.contains(row.devId) && row.isReplacedBy(serialNumber))
            return tr(R"("%1" had the serial number %2 in the run %3 and has %4 in the inventory: it is another device, )"
                      "which not:%1 leaves out")
                .arg(row.devId, row.serialNumber, run.run.id, serialNumber);
    }
    return {};
}

bool CommandInput::chooseCandidates()
{
    const DeviceSelection::Selected selected = m_terms.connectTo(m_inventory, knowledge());
    if (!areAllNamed() && !selected.error.isEmpty())
        return fail(selected);
    const QStringList ids = shareOf(narrowed(selected.devIds), m_options.shard, m_options.shards);
    const QString replaced = m_runDetails ? replacedIn(*m_runDetails, ids) : QString();
    if (!replaced.isEmpty())
        return fail(replaced, orda_programs::ExitInput);
    for (const QString &devId : ids)
        if (m_deviceById.contains(devId))
            m_candidates.append(m_deviceById.value(devId));
    return true;
}

bool CommandInput::select()
{
    QStringList devIds;
    if (areAllNamed()) {
        devIds = narrowed({});
    } else {
        const DeviceSelection::Selected selected = m_terms.of(m_inventory, knowledge());
        if (!selected.error.isEmpty())
            return fail(selected);
        m_leftOut = selected.leftOut;
        devIds = narrowed(selected.devIds);
        const int others = selected.devIds.size() - devIds.size();
        if (others > 0)
            m_notes.append(
                m_run ? tr("%n selected device(s) have nothing of the run", nullptr, others)
                      : tr("%n selected device(s) have no values in %1", nullptr, others).arg(m_options.valuesFile));
        const int unselected = m_wanted.isByDevice() ? m_wanted.devIds().size() - devIds.size() : 0;
        if (unselected > 0)
            m_notes.append(tr("%n device(s) of %1 are not selected", nullptr, unselected).arg(m_options.valuesFile));
    }
    if (devIds.isEmpty())
        return fail(tr("no device is selected"), orda_programs::ExitNoDevice);
    m_selection.devIds = shareOf(devIds, m_options.shard, m_options.shards);
    return true;
}

DevInfo CommandInput::deviceOf(const QString &devId) const
{
    DevInfo device = m_deviceById.value(devId);
    if (!device.id.isEmpty() || !m_runDetails)
        return device;
    for (const orda_journal::DeviceRow &row : m_runDetails->devices) {
        if (row.devId == devId) {
            device.id = devId;
            device.name = row.name;
            device.serialNumber = row.serialNumber;
            device.ip = row.ip;
        }
    }
    return device;
}

} // namespace orda_batch
