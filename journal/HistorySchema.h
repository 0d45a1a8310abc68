#pragma once

#include <QStringList>
#include <QVector>

namespace orda_journal {

/// The steps from an empty file to the present tables, each a list of statements. A file's "user_version" is the number
/// of steps that it has seen. Steps are added and never changed.
const QVector<QStringList> &historySteps();

} // namespace orda_journal
