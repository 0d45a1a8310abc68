#include "fleet/Site.h"

#include "fleet/ParameterTemplates.h"
#include "fleet/SiteTexts.h"

#include <QHostAddress>
#include <QRandomGenerator>

#include <array>

namespace device_fleet {

namespace {

constexpr int recorder = 6;
constexpr int decoder = 3; // an example of the other kinds
constexpr int reachedThroughOthers = 2;

bool happens(QRandomGenerator &random, int percent)
{
    return random.bounded(100) < percent;
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
    return kind < 18 ? recorder : cameraKind;
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
        info.ipNumber = ownAddress("127.10.0.0", index);
        info.ip = QHostAddress(info.ipNumber).toString();
    }
    device.parameters = drawParameters(info, random);
    return device;
}

} // namespace device_fleet
