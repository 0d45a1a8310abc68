#pragma once

#include "engine/DevicePlan.h"
#include "engine/DeviceUndo.h"

namespace orda_engine {

// Lists of members for messages, a line each. Members and values stand as devices have them.

/// For people: some devices have members of a thousand characters, which nobody reads.
QString shortened(const QString &text);

/// A value as one writes it in JSON; "-" for an undefined one.
QString textOf(const QJsonValue &value);
/// The same, but a text without the quotation marks of JSON.
QString plainTextOf(const QJsonValue &value);
/// "position: hide instead of left_top, …"; empty when there are none.
QString textOf(const QVector<MemberDifference> &differences);
/// What an undo leaves as it is, and why; empty when it leaves nothing.
QString textOfLeft(const DeviceUndo &undo);

} // namespace orda_engine
