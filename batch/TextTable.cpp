#include "batch/TextTable.h"

#include <algorithm>
#include <cwchar>

namespace orda_batch {

namespace {

int widthOf(uint character)
{
    const int width = ::wcwidth(wchar_t(character));
    return width < 0 ? 1 : width;
}

} // namespace

QString alignedLine(const QStringList &cells, const QVector<int> &widths)
{
    QString text;
    for (int column = 0; column + 1 < cells.size(); ++column) {
        const int padding = std::max(0, widths.at(column) - displayWidth(cells.at(column)));
        text += cells.at(column) + QString(padding + 2, QLatin1Char(' '));
    }
    return text + cells.value(cells.size() - 1);
}

QString alignedTable(const QStringList &head, const QVector<QStringList> &rows)
{
    QVector<int> widths(head.size());
    const auto widen = [&widths](const QStringList &cells) {
        for (int column = 0; column < cells.size(); ++column)
            widths[column] = std::max(widths.at(column), displayWidth(cells.at(column)));
    };
    widen(head);
    std::for_each(rows.begin(), rows.end(), widen);
    QString text = alignedLine(head, widths) + QLatin1Char('\n');
    for (const QStringList &row : rows)
        text += alignedLine(row, widths) + QLatin1Char('\n');
    return text;
}

int displayWidth(const QString &text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        width += widthOf(character);
    return width;
}

QString cutToWidth(const QString &text, int width)
{
    if (displayWidth(text) <= width)
        return text;
    int left = width - 1; // for the sign that it was cut
    QString cut;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        left -= widthOf(character);
        if (left < 0)
            break;
        cut += QString::fromUcs4(&character, 1);
    }
    return width > 0 ? cut + QChar(0x2026) : QString();
}

} // namespace orda_batch
