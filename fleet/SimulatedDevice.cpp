#include "fleet/SimulatedDevice.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>

namespace device_fleet {

namespace {

/// One parameter object and its two methods.
struct Family
{
    const char *readMethod, *writeMethod, *object;
    const char *attributes = ""; ///< the member of a write's "param" that holds what is written; empty: "param" itself
    const char *part = ""; ///< the member of the object that is written to; empty: the object itself
};

constexpr Family families[] = {
    {"ai_get_param", "ai_set_param", "audioIn", "audioAttr"},
    {"ao_get_param", "ao_set_param", "audioOut", "audioAttr"},
    {"stream_get_params", "stream_set_params", "video"},
    {"image_get_adjust_param", "image_set_adjust_param", "imageAdjust", "attr"},
    {"image_get_expertsetting_param", "image_set_expertsetting_param", "imageExpert", "attr"},
    {"image_get_dncut_param", "image_set_dncut_param", "imageDayNight", "attr"},
    {"chnosd_get_param", "chnosd_set_param", "osd", "attr"},
    {"netservice_onvif_get_discoveryinfo", "netservice_onvif_set_discoveryinfo", "onvifDiscovery"},
    {"ifconfig_get_inet", "ifconfig_eth_set", "inet", "", "eth"},
    {"ifconfig_qbcloud_get_param", "ifconfig_qbcloud_set_param", "qbcloud"},
    {"alarmservice_get_cfg", "alarmservice_set_cfg", "alarmService"},
};

QLatin1String name(const char *latin1)
{
    return QLatin1String(latin1);
}

const Family *findFamily(const QString &method)
{
    const auto found = std::find_if(std::begin(families), std::end(families), [&method](const Family &family) {
        return method == name(family.readMethod) || method == name(family.writeMethod);
    });
    return found == std::end(families) ? nullptr : found;
}

QString methodOf(const QJsonObject &request)
{
    return request.value(QLatin1String("method")).toString();
}

/// What a write request names, without what only steers the request; nothing when "param" does not suit the method.
std::optional<QJsonObject> writtenMembers(const Family &family, const QJsonObject &request)
{
    const QJsonValue param = request.value(QLatin1String("param"));
    const QJsonValue written =
        name(family.attributes).isEmpty() ? param : param.toObject().value(name(family.attributes));
    if (!written.isObject())
        return std::nullopt;
    QJsonObject members = written.toObject();
    for (const auto steering : {QLatin1String("channelid"), QLatin1String("bdefault"), QLatin1String("clienttype")})
        members.remove(steering);
    return members;
}

void merge(QJsonObject &target, const QJsonObject &members)
{
    // Into a new object: a QJsonObject that is changed often keeps the texts that it has lost.
    QJsonObject merged;
    for (auto it = target.constBegin(); it != target.constEnd(); ++it)
        merged.insert(it.key(), members.contains(it.key()) ? members.value(it.key()) : it.value());
    for (auto it = members.constBegin(); it != members.constEnd(); ++it)
        if (!merged.contains(it.key()))
            merged.insert(it.key(), it.value());
    target = merged;
}

/// @return false, and nothing changed, when a written stream is none of the device's
bool mergeStreams(QJsonArray &streams, const QJsonArray &written)
{
    const auto idOf = [](const QJsonValue &stream) {
        return stream.toObject().value(QLatin1String("streamid")).toInt();
    };
    QJsonArray merged = streams;
    for (const QJsonValue &stream : written) {
        const auto sameId = [&](const QJsonValue &candidate) { return idOf(candidate) == idOf(stream); };
        const auto target = std::find_if(merged.begin(), merged.end(), sameId);
        if (target == merged.end())
            return false;
        QJsonObject attributes = QJsonValue(*target).toObject();
        merge(attributes, stream.toObject());
        *target = attributes;
    }
    streams = merged;
    return true;
}

/// @return false, and nothing changed, when the device cannot take the members
bool write(const Family &family, QJsonObject &object, QJsonObject members)
{
    const QLatin1String streamsKey("streams");
    if (members.value(streamsKey).isArray()) {
        QJsonArray streams = object.value(streamsKey).toArray();
        if (!mergeStreams(streams, members.value(streamsKey).toArray()))
            return false;
        members.insert(streamsKey, streams);
    }
    if (name(family.part).isEmpty()) {
        merge(object, members);
    } else if (!members.isEmpty()) {
        QJsonObject part = object.value(name(family.part)).toObject();
        merge(part, members);
        object.insert(name(family.part), part);
    }
    return true;
}

} // namespace

SimulatedDevice::SimulatedDevice(QString id, QJsonObject parameters)
    : m_id(std::move(id))
    , m_parameters(std::move(parameters))
{
}

QJsonObject SimulatedDevice::answer(const QJsonObject &request)
{
    const QString method = methodOf(request);
    if (method.isEmpty())
        return errorAnswer(method, DeviceBadRequest);
    const Family *family = findFamily(method);
    if (!family)
        return errorAnswer(method, DeviceUnknownMethod);

    QJsonObject object = m_parameters.value(name(family->object)).toObject();
    QJsonObject answer = errorAnswer(method, DeviceOk);
    if (method == name(family->readMethod)) {
        answer.insert(QStringLiteral("result"), object);
        return answer;
    }
    const auto members = writtenMembers(*family, request);
    if (!members || !write(*family, object, *members))
        return errorAnswer(method, DeviceBadParameter);
    m_parameters.insert(name(family->object), object);
    return answer;
}

void SimulatedDevice::loseMember(const QJsonObject &request)
{
    const QString method = methodOf(request);
    const Family *family = findFamily(method);
    if (!family || method != name(family->writeMethod))
        return;
    const auto members = writtenMembers(*family, request);
    if (!members || members->isEmpty())
        return;
    const QString lost = members->constBegin().key();
    QJsonObject object = m_parameters.value(name(family->object)).toObject();
    if (name(family->part).isEmpty()) {
        object.remove(lost);
    } else {
        QJsonObject part = object.value(name(family->part)).toObject();
        part.remove(lost);
        object.insert(name(family->part), part);
    }
    m_parameters.insert(name(family->object), object);
}

QStringList SimulatedDevice::methods()
{
    QStringList names;
    for (const Family &family : families)
        names << name(family.readMethod) << name(family.writeMethod);
    return names;
}

QJsonObject errorAnswer(const QString &method, int errorCode)
{
    return {{QStringLiteral("method"), method},
            {QStringLiteral("error"), QJsonObject{{QStringLiteral("errorcode"), errorCode}}}};
}

} // namespace device_fleet
