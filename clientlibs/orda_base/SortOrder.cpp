#include "orda_base/SortOrder.h"

#include <QLocale>
#include <QStringList>

namespace orda_base {

// One for all, because it is slow to make.
const QCollator &nameCollator()
{
    static const QCollator shared = [] {
        // The C locale cannot compare numbers in texts.
        const QLocale locale;
        QCollator made(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
        made.setNumericMode(true);
        made.setCaseSensitivity(Qt::CaseInsensitive);
        return made;
    }();
    return shared;
}

std::optional<quint32> ipv4Number(const QString &text)
{
    const QVector<QStringRef> bytes = text.splitRef(QLatin1Char('.'));
    if (bytes.size() != 4)
        return {};
    quint32 number = 0;
    for (const QStringRef &byte : bytes) {
        bool isNumber = false;
        const ushort value = byte.toUShort(&isNumber);
        if (!isNumber || value > 255)
            return {};
        number = number << 8U | value;
    }
    return number;
}

} // namespace orda_base
