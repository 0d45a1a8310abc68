#include "batch/TextTable.h"

#include <algorithm>
#include <cwchar>

namespace orda_batch {

QString alignedLine(const QStringList &cells, const QVector<int> &widths)
{
    QString text;
    for (int column = 0; column + 1 < cells.size(); ++column) {
        const int padding = std::max(widths.at(column) - shownWidth(cells.at(column)), 0) + 2;
        text += cells.at(column) + QString(padding, QLatin1Char(' '));
    }
    return text + cells.value(cells.size() - 1);
}

QString alignedTable(const QStringList &head, const QVector<QStringList> &rows)
{
    QVector<int> widths(head.size());
    const auto widen = [&widths](const QStringList &cells) {
        for (int column = 0; column < cells.size(); ++column)
            widths[column] = std::max(widths.at(column), shownWidth(cells.at(column)));
    };
    widen(head);
    std::for_each(rows.begin(), rows.end(), widen);
    QString text = alignedLine(head, widths) + QLatin1Char('\n');
    for (const QStringList &row : rows)
        text += alignedLine(row, widths) + QLatin1Char('\n');
    return text;
}

int shownWidth(const QString &text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        const int columns = ::wcwidth(wchar_t(character));
        width += columns < 0 ? 1 : columns; // the locale does not know it
    }
    return width;
}

} // namespace orda_batch
