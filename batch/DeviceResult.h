#pragma once

#include "journal/Outcome.h"

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace orda_batch {

/// A member of a device that is, or would be, another one.
struct Change
{
    QString key; ///< "channelName", "stream0.bitRate"
    QJsonValue before; ///< what the device held; undefined: it does not have it
    QJsonValue after; ///< what it was to hold
};

/// What came of one device.
struct DeviceResult
{
    QString devId, serialNumber, name, ip;
    orda_journal::Outcome outcome = orda_journal::Outcome::Done;
    int code = 0; ///< as in ParamsCfgTask::signalCfgResult()
    QString message;
    QString reason = {}; ///< of a device that was not reached: orda_engine::reachName()
    QVector<Change> changes = {};
    QStringList lacking = {}; ///< keys that are asked for and that the device does not have
    QJsonObject values = {}; ///< of a reading: what it holds, by member
};

/// The end of a command.
struct Summary
{
    QString command; ///< "apply"
    QString family;
    QString runId; ///< empty: nothing was recorded, or nothing began
    QString undoes; ///< of an undo: the run that it takes back
    int devices = 0; ///< selected
    int leftOut = 0; ///< matched by the selection, and no camera or recorder that is reached directly
    QMap<orda_journal::Outcome, int> outcomes = {};
    QString stopped = {}; ///< why nothing more was done; empty when everything was
    QString error = {}; ///< why it could not begin, or was not recorded
    int exitCode = 0;
};

} // namespace orda_batch
