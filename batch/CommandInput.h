#pragma once

#include "batch/BatchOptions.h"
#include "batch/DeviceSelection.h"
#include "batch/KeyTable.h"
#include "batch/WantedValues.h"
#include "engine/RecordedRun.h"
#include "engine/Selection.h"
#include "journal/HistoryOptions.h"
#include "journal/HistoryRows.h"

#include <memory>
#include <optional>

namespace device_fleet {
class EmbeddedFleet;
}

namespace orda_batch {

/// What a command is about, from the options and files that say so: devices, parameters, values, a recorded run.
class CommandInput
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::CommandInput)

public:
    CommandInput(const BatchOptions &options, const orda_journal::HistoryOptions &history);
    ~CommandInput();

    /// Reads everything. @return whether it is all right; else errors() and exitCode() say what is wrong
    bool read();
    /// The devices that may be selected; no others need to be connected.
    const QList<vms_sdk::DevInfo> &devicesToConnect() const { return m_candidates; }
    /// Settles which devices are selected; those of devicesToConnect() are connected, as far as they can be.
    /// @return as read()
    bool select();

    const QStringList &errors() const { return m_errors; }
    /// What the user should know of and that stops nothing; those since the last call.
    QStringList takeNotes() { return std::exchange(m_notes, {}); }
    int exitCode() const { return m_exitCode; } ///< of the errors

    /// Complete after select().
    const orda_engine::Selection &selection() const { return m_selection; }
    const KeyTable &keys() const { return *m_keys; }
    /// Of "verify RUN" and "undo RUN".
    const std::optional<orda_journal::RunDetails> &runDetails() const { return m_runDetails; }
    const orda_engine::RecordedRun &run() const { return *m_run; }
    int leftOut() const { return m_leftOut; }
    /// The record of a device that is selected; of one that is not in the inventory any more what the run knows of it.
    vms_sdk::DevInfo deviceOf(const QString &devId) const;

private:
    bool readRun();
    bool readValues();
    bool readDevices();
    DeviceSelection::Knowledge knowledge();
    QStringList failedIn(const QString &run, QString *error);
    bool chooseCandidates();
    bool areAllNamed() const;
    QString replacedIn(const orda_journal::RunDetails &run, const QStringList &devIds) const;
    QStringList narrowed(const QStringList &devIds) const;
    bool fail(const QString &error, int exitCode);
    bool fail(const DeviceSelection::Selected &selected);

    const BatchOptions m_options;
    const orda_journal::HistoryOptions m_history;
    std::unique_ptr<device_fleet::EmbeddedFleet> m_demo;
    QHash<QString, vms_sdk::DevInfo> m_deviceById;
    QList<vms_sdk::DevInfo> m_inventory;
    QList<vms_sdk::DevInfo> m_candidates;
    std::optional<KeyTable> m_keys;
    WantedValues m_wanted;
    DeviceSelection m_terms;
    std::optional<orda_journal::RunDetails> m_runDetails;
    std::optional<orda_engine::RecordedRun> m_run;
    orda_engine::Selection m_selection;
    QHash<QString, QStringList> m_failedIn; // by run: "last" must not become another run while devices are connected
    bool m_isHistoryUnreadable = false;
    int m_leftOut = 0;
    QStringList m_errors, m_notes;
    int m_exitCode = 0;
};

} // namespace orda_batch
