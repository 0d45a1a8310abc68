#include "fleet/Site.h"

#include "fleet/ParameterTemplates.h"

#include <QHostAddress>
#include <QRandomGenerator>

#include <array>

namespace device_fleet {

namespace {

constexpr int camera = 1;
constexpr int recorder = 6;
constexpr int decoder = 3; // an example of the other kinds
constexpr int reachedDirectly = 1;
constexpr int reachedThroughOthers = 2;

bool happens(QRandomGenerator &random, int percent)
{
    return random.bounded(100) < percent;
}

template <std::size_t n>
QString oneOf(QRandomGenerator &random, const std::array<const char *, n> &texts)
{
    return QString::fromUtf8(texts.at(std::size_t(random.bounded(int(n)))));
}

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

/// Twelve characters of four classes.
QString drawStrongPassword(QRandomGenerator &random)
{
    static constexpr std::array<const char *, 4> classes{"abcdefghkmnpqrst", "ABCDEFGHKMNPQRST", "2345678923456789",
                                                         "!#%+-=?@_.:;,*~^"};
    QString password;
    for (std::size_t i = 0; i < 12; ++i)
        password += QLatin1Char(classes.at(i % classes.size())[random.bounded(16)]);
    return password;
}

QString drawPassword(QRandomGenerator &random, vms_sdk::DevStatus state)
{
    static constexpr std::array weak{"12345678", "camera", "admin1", "password"};
    if (state == vms_sdk::DevDefaultPassword)
        return QStringLiteral("admin");
    return happens(random, 15) ? oneOf(random, weak) : drawStrongPassword(random);
}

vms_sdk::DevStatus drawState(QRandomGenerator &random)
{
    const int kind = random.bounded(100);
    if (kind < 5)
        return vms_sdk::DevDefaultPassword;
    return kind < 8 ? vms_sdk::DevLocked : vms_sdk::DevOnline;
}

int drawKind(QRandomGenerator &random)
{
    const int kind = random.bounded(100);
    if (kind < 2)
        return decoder;
    return kind < 18 ? recorder : camera;
}

/// 127.10.0.1 on, 250 devices to a subnet: no address ends in 0 or 255.
quint32 ownAddress(int index)
{
    constexpr int perSubnet = 250;
    return QHostAddress(QStringLiteral("127.10.0.0")).toIPv4Address() + (quint32(index / perSubnet) << 8)
         + quint32(index % perSubnet) + 1;
}

/// By number and not drawn: the rest of a device stays what a seed has always given.
QString groupOf(int index)
{
    static constexpr std::array groups{"north", "south", "gate"};
    return QString::fromLatin1(groups.at(std::size_t(index) % groups.size()));
}

} // namespace

SiteDevice makeSiteDevice(quint32 seed, int index)
{
    const std::array<quint32, 2> seeds{seed, quint32(index)};
    QRandomGenerator random(seeds.data(), qsizetype(seeds.size()));

    SiteDevice device;
    device.state = drawState(random);
    device.online = !happens(random, 5);
    vms_sdk::DevInfo &info = device.info;
    info.id = QStringLiteral("dev-%1").arg(index + 1, 4, 10, QLatin1Char('0'));
    info.path = QLatin1Char('/') + info.id;
    info.kindCode = drawKind(random);
    info.accessCode = happens(random, 3) ? reachedThroughOthers : reachedDirectly;
    info.name = drawName(random);
    info.serialNumber = QStringLiteral("%1%2%3")
                            .arg(info.kindCode == recorder ? QStringLiteral("NR") : QStringLiteral("CM"))
                            .arg(random.bounded(0x10000), 4, 16, QLatin1Char('0'))
                            .arg(index + 1, 6, 10, QLatin1Char('0'))
                            .toUpper();
    info.group = groupOf(index);
    info.userName = QStringLiteral("admin");
    info.password = drawPassword(random, device.state);
    if (!happens(random, 5)) { // the others are cloud devices
        info.ipNumber = ownAddress(index);
        info.ip = QHostAddress(info.ipNumber).toString();
    }
    device.parameters = drawParameters(info, random);
    return device;
}

} // namespace device_fleet
