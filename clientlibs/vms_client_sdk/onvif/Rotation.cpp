#include <vms_client_sdk/onvif/Rotation.h>

#include <vms_client_sdk/onvif/KeyMap.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

namespace vms_sdk {

namespace {

const char modeOn[] = "ON";
const char modeOff[] = "OFF";
const char modeAuto[] = "AUTO";
const char halfTurn[] = "180"; // also what a camera does that is to turn and is not told how far
const QLatin1String turned("rotate");

/// A mode and, with modeOn, the degrees, in our word.
QString wordOf(const QString &mode, const QString &degrees)
{
    if (mode == QLatin1String(modeAuto))
        return QStringLiteral("auto");
    if (mode != QLatin1String(modeOn))
        return QStringLiteral("off");
    const bool isHalf = degrees.isEmpty() || degrees == QLatin1String(halfTurn);
    return isHalf ? QStringLiteral("both") : turned + degrees;
}

struct Turn
{
    QString mode;
    QString degrees; ///< empty: not to be said
};

/// Everything that the camera can do.
std::vector<Turn> turnsOf(const KeyOptions &options)
{
    const QStringList modes = options.limitAt("Extension/Rotate/Mode").value_or(KeyLimit()).words;
    const QStringList degrees = options.limitAt("Extension/Rotate/DegreeList/Items").value_or(KeyLimit()).words;
    std::vector<Turn> turns;
    for (const QString &mode : modes) {
        if (mode != QLatin1String(modeOn) || degrees.isEmpty())
            turns.push_back({mode, {}});
        else
            for (const QString &each : degrees)
                turns.push_back({mode, each});
    }
    return turns;
}

} // namespace

QJsonValue rotationOf(const XmlElement &configuration, const KeyOptions &options)
{
    if (!options.limitAt("Extension/Rotate/Mode"))
        return QJsonValue::Undefined;
    const QString mode = textAt(configuration, "Extension/Rotate/Mode").value_or(QLatin1String(modeOff));
    return wordOf(mode, textAt(configuration, "Extension/Rotate/Degree").value_or(QString()));
}

QString setRotation(const QString &key, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration)
{
    const std::vector<Turn> turns = turnsOf(options);
    QStringList allowed;
    for (const Turn &turn : turns) {
        allowed.append(wordOf(turn.mode, turn.degrees));
        if (allowed.constLast() != wanted.toString())
            continue;
        XmlElement &rotate =
            placed(&configuration->childMade(onvif::tt, "Extension"), "Rotate", {"Rotate", "Extension"});
        placed(&rotate, "Mode", {"Mode", "Degree", "Extension"}).setText(turn.mode);
        if (!turn.degrees.isEmpty())
            placed(&rotate, "Degree", {"Degree", "Extension"}).setText(turn.degrees);
        else
            removeChild(&rotate, "Degree"); // of a turn that is over
        return {};
    }
    allowed.removeDuplicates();
    return notAllowed(key, wanted, listed(allowed));
}

} // namespace vms_sdk
