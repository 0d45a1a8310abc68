#pragma once

#include <QStringList>
#include <QVector>

namespace orda_batch {

/// Rows under a head, in columns that are as wide as their widest text, with two blanks between them; each line with
/// its end. Texts must not hold line breaks (vms_sdk::escaped()).
QString alignedTable(const QStringList &head, const QVector<QStringList> &rows);

/// The cells of one such line without its end; a cell that is wider than its column pushes those behind it.
QString alignedLine(const QStringList &cells, const QVector<int> &widths);

/// How many columns of a terminal a text takes: Chinese characters take two each.
int shownWidth(const QString &text);

} // namespace orda_batch
