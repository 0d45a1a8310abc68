#pragma once

#include <QByteArray>
#include <QString>

namespace orda_batch {

/// Reads a file that the command line names; also a pipe.
/// @param maxBytes that it may have
/// @return why it cannot be read, for the user; empty on success
QString readInputFile(const QString &path, qint64 maxBytes, QByteArray *content);

} // namespace orda_batch
