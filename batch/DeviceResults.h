#pragma once

#include "batch/DeviceResult.h"
#include "engine/ReadJob.h"
#include "engine/RecordedRun.h"
#include "journal/TrackedRun.h"

#include <vms_client_sdk/DevInfo.h>

namespace orda_batch {

class CommandInput;
class KeyTable;

// What the engine says of a device, as results. Pure functions but for the words.

/// Of a device with which nothing was done. @param why for the user
DeviceResult stoppedResult(const vms_sdk::DevInfo &device, const QString &why);
DeviceResult notReachedResult(const vms_sdk::DevInfo &device, const orda_engine::Reach &reach);
/// Of a device that was written to, or should have been.
DeviceResult writtenResult(const vms_sdk::DevInfo &device, const orda_journal::Settled &settled);
/// The same with the keys of the values that the device lacks.
DeviceResult appliedResult(const vms_sdk::DevInfo &device, const orda_journal::Settled &settled,
                           const orda_engine::Selection &selection);

/// Of a device that was to be read. The others add what their command makes of it.
DeviceResult readingResult(const vms_sdk::DevInfo &device, const orda_engine::DeviceReading &reading);
/// What the device holds. @param isWhole all members, and not only those that the family has keys for
DeviceResult heldResult(const vms_sdk::DevInfo &device, const orda_engine::DeviceReading &reading, const KeyTable &keys,
                        bool isWhole);
/// What a run would change: Differs when it would change something, else Unchanged.
DeviceResult planResult(const vms_sdk::DevInfo &device, const orda_engine::DeviceReading &reading,
                        const orda_engine::Selection &selection);
/// Whether the device holds what is wanted: Done or Differs.
/// @param input of the run that is verified, or of values
DeviceResult verifiedResult(const vms_sdk::DevInfo &device, const orda_engine::DeviceReading &reading,
                            const CommandInput &input);
/// What an undo would change: as planResult().
DeviceResult undoPlanResult(const vms_sdk::DevInfo &device, const orda_engine::DeviceReading &reading,
                            const orda_engine::RecordedRun &run, bool isForced);

} // namespace orda_batch
