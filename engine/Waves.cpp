#include "engine/Waves.h"

#include <QStringList>

namespace orda_engine {

Waves Waves::parse(const QString &text, QString *error)
{
    Waves waves;
    error->clear();
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString &part : parts) {
        QString digits = part.trimmed();
        const bool isPercent = digits.endsWith(QLatin1Char('%'));
        if (isPercent)
            digits.chop(1);
        bool isNumber = false;
        const int number = digits.toInt(&isNumber);
        if (!isNumber || number < 1 || (isPercent && number > 100)) {
            *error =
                tr("\"%1\" is no size of a wave: a number of devices from 1 on, or 1% to 100%").arg(part.trimmed());
            return {};
        }
        waves.m_sizes.append({number, isPercent});
    }
    return waves;
}

int Waves::sizeOf(int wave, int allDevices, int left) const
{
    if (m_sizes.isEmpty())
        return left;
    const Size &size = m_sizes.at(qMin(wave, m_sizes.size() - 1));
    const qint64 devices = size.isPercent ? qint64(size.number) * allDevices / 100 : size.number;
    return int(qBound<qint64>(1, devices, left));
}

} // namespace orda_engine
