#include "fleet/SiteTexts.h"

#include <QHostAddress>

namespace device_fleet {

QString drawName(QRandomGenerator &random)
{
    static constexpr std::array plain{"Gate",      "Warehouse", "Parking Level", "Loading Dock", "Lobby", "Stairwell",
                                      "Corridor",  "Office",    "Server Room",   "Fence",        "Lift",  "Canteen",
                                      "Reception", "Roof",      "Workshop",      "Cold Store"};
    static constexpr std::array foreign{"Südtor", "Entrée", "倉庫", "Склад", "Łącznik"};
    static constexpr std::array side{"", "", "", "", " North", " East", " South", " West"};
    const int number = random.bounded(1, 41);
    const int kind = random.bounded(100);
    if (kind < 3)
        return {};
    if (kind < 6)
        return QStringLiteral("%1 %2").arg(oneOf(random, foreign)).arg(number);
    const QString name = QStringLiteral("%1 %2%3").arg(oneOf(random, plain)).arg(number).arg(oneOf(random, side));
    return kind < 9
             ? name + QStringLiteral(", view of the conveyor belt and of the emergency exit behind the second pillar")
             : name;
}

QString drawStrongPassword(QRandomGenerator &random)
{
    static constexpr std::array<const char *, 4> classes{"abcdefghkmnpqrst", "ABCDEFGHKMNPQRST", "2345678923456789",
                                                         "!#%+-=?@_.:;,*~^"};
    QString password;
    for (std::size_t i = 0; i < 12; ++i)
        password += QLatin1Char(classes.at(i % classes.size())[random.bounded(16)]);
    return password;
}

QString groupOf(int index)
{
    static constexpr std::array groups{"north", "south", "gate"};
    return QString::fromLatin1(groups.at(std::size_t(index) % groups.size()));
}

quint32 ownAddress(const char *firstNetwork, int index)
{
    constexpr int perSubnet = 250;
    return QHostAddress(QLatin1String(firstNetwork)).toIPv4Address() + (quint32(index / perSubnet) << 8)
         + quint32(index % perSubnet) + 1;
}

} // namespace device_fleet
