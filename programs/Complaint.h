#pragma once

#include <QString>

namespace orda_programs {

/// Writes "<program>: <text>" as a line to the standard error output. Texts of devices and files are safe on a terminal
/// there: what it would obey, and what nobody would see, is written as numbers.
void complain(const QString &text);

/// Complains. @return the code, for main() to return
int fail(const QString &text, int code);

} // namespace orda_programs
