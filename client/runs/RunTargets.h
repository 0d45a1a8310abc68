#pragma once

#include "client/runs/RunHistory.h"
#include "engine/Selection.h"

#include <QCoreApplication>

namespace orda_client {

/// The devices of a recorded run that something is to be done with now. Decided by what the device store has at this
/// moment; GUI thread.
struct RunTargets
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RunTargets)

public:
    orda_engine::Selection selection; ///< of a retry with the values of the run, each device with its own
    QStringList leftOut; ///< for the user: the other devices, each with its name and why
    QString refusal; ///< why nothing can be done, for the user; then there are no devices

    /// Those that are still the devices that the run had, in their order: for reading and for taking the run back.
    /// @param devIds devices of the run; others are left out
    static RunTargets of(const ChosenRun &run, const QStringList &devIds);
    /// Those that can be configured with the values that the run had for them.
    static RunTargets toTryAgain(const ChosenRun &run, const QStringList &devIds);

    /// How many of the devices cannot be written to now.
    int countNotReached() const;
    /// The devices that are left out, a line each, so many that a question stays readable.
    QStringList leftOutLines() const;
};

} // namespace orda_client
