#pragma once

#include "client/runs/RunHistory.h"
#include "engine/ReadJob.h"

#include <QCoreApplication>

namespace orda_client {

/// What a device of a recorded run holds now, against what the run has left there or what there was before.
struct CheckedDevice
{
    /// In the order in which an operator wants to see them.
    enum State
    {
        Differs, ///< verify: not as the run has left it
        IsWrittenOver, ///< undo by force: something that was changed since
        Stays, ///< undo: all that the run has changed was changed since, or cannot be taken out
        GoesBackInPart, ///< undo: something of it; the rest stays
        GoesBack, ///< undo: all of it
        NotRead,
        NotReached,
        Replaced, ///< it is another device by now, and was not read
        AlreadyBack, ///< undo: nothing of the run is left in it
        AsWritten ///< verify
    };

    orda_journal::DeviceRow row;
    State state = NotRead;
    QString changes; ///< verify: "Volume: 5 → 7", written and found; undo: found now and when it is taken back
    QString note; ///< why it was not read, or what stays as it is
    bool isChangedSince = false; ///< undo: somebody has changed something of it since the run

    /// Whether taking the run back writes to the device.
    bool isWritten() const { return state == GoesBack || state == GoesBackInPart || state == IsWrittenOver; }
    static QString stateText(State state);
};

/// Checks devices of one run. A copy that any thread may use.
struct RunCheck
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RunCheck)

public:
    enum Kind
    {
        Verify,
        Undo
    };

    Kind kind;
    ChosenRunPtr run; ///< something can be done with it: RecordedRun::error() is empty
    RunTexts texts;
    bool force = false; ///< undo: writes over what was changed since, too

    /// @param readings by device id; a device of the run without one is another device by now
    QVector<CheckedDevice> devices(const QStringList &devIds,
                                   const QHash<QString, orda_engine::DeviceReading> &readings) const;

private:
    void verify(CheckedDevice *device, const orda_engine::ObjectsByExchange &held) const;
    void takeBack(CheckedDevice *device, const orda_engine::ObjectsByExchange &held) const;
};

} // namespace orda_client
