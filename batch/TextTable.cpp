#include "batch/TextTable.h"

#include <QVector>

#include <cwchar>

namespace orda_batch {

namespace {

int widthOf(uint character)
{
    const int width = ::wcwidth(wchar_t(character));
    return width < 0 ? 1 : width;
}

} // namespace

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
