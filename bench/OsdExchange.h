#pragma once

#include <QString>

/// The texts of one OSD exchange as the module writes and reads them, with nothing around: the least work that a
/// configured device can cost.
namespace osd_exchange {

QString readRequest();
/// Parses the device's answer, merges what the OSD page asks for at its start, builds the write.
/// @return empty when the device refused the read
QString writeRequest(const QString &readAnswer);
bool isAccepted(const QString &writeAnswer);

/// What a simulated device answers to these.
QString readAnswer(int transparency = 20);
QString writeAnswer();

} // namespace osd_exchange
