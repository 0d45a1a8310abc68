#pragma once

#include <QStringList>
#include <QVector>

namespace orda_batch {

/// Rows under a head, in columns that are as wide as their widest text, with two blanks between them; each line with
/// its end. Texts must not hold line breaks (vms_sdk::escaped()).
QString alignedTable(const QStringList &head, const QVector<QStringList> &rows);
<<<<<<< HEAD

/// The cells of one such line, but for its end. @param widths of all columns but the last
QString alignedLine(const QStringList &cells, const QVector<int> &widths);

/// How many columns of a terminal a text takes: wide characters, as Chinese ones are, take two. By the locale of the
/// process; controls and what the locale does not know count as one.
int displayWidth(const QString &text);
=======
>>>>>>> h3

/// How many columns of a terminal a text takes: Chinese characters take two each.
int shownWidth(const QString &text);

} // namespace orda_batch
