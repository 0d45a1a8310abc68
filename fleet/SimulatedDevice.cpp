#include "SimulatedDevice.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace device_fleet {

namespace {

/// One parameter object and its two methods.
struct Family
{
    QLatin1String readMethod, writeMethod, object;
    QLatin1String attributes; ///< the member of a write's "param" that holds what is written; empty: "param" itself
    QLatin1String part; ///< the member of the object that is written to; empty: the object itself
};

constexpr std::array families{
    Family{QLatin1String("ai_get_param"),
           QLatin1String("ai_set_param"),
           QLatin1String("audioIn"),
           QLatin1String("audioAttr"),
           {}},
    Family{QLatin1String("ao_get_param"),
           QLatin1String("ao_set_param"),
           QLatin1String("audioOut"),
           QLatin1String("audioAttr"),
           {}},
    Family{QLatin1String("stream_get_params"), QLatin1String("stream_set_params"), QLatin1String("video"), {}, {}},
    Family{QLatin1String("image_get_adjust_param"),
           QLatin1String("image_set_adjust_param"),
           QLatin1String("imageAdjust"),
           QLatin1String("attr"),
           {}},
    Family{QLatin1String("image_get_expertsetting_param"),
           QLatin1String("image_set_expertsetting_param"),
           QLatin1String("imageExpert"),
           QLatin1String("attr"),
           {}},
    Family{QLatin1String("image_get_dncut_param"),
           QLatin1String("image_set_dncut_param"),
           QLatin1String("imageDayNight"),
           QLatin1String("attr"),
           {}},
    Family{QLatin1String("chnosd_get_param"),
           QLatin1String("chnosd_set_param"),
           QLatin1String("osd"),
           QLatin1String("attr"),
           {}},
    Family{QLatin1String("netservice_onvif_get_discoveryinfo"),
           QLatin1String("netservice_onvif_set_discoveryinfo"),
           QLatin1String("onvifDiscovery"),
           {},
           {}},
    Family{QLatin1String("ifconfig_get_inet"),
           QLatin1String("ifconfig_eth_set"),
           QLatin1String("inet"),
           {},
           QLatin1String("eth")},
    Family{QLatin1String("ifconfig_qbcloud_get_param"),
           QLatin1String("ifconfig_qbcloud_set_param"),
           QLatin1String("qbcloud"),
           {},
           {}},
    Family{QLatin1String("alarmservice_get_cfg"),
           QLatin1String("alarmservice_set_cfg"),
           QLatin1String("alarmService"),
           {},
           {}},
};

const Family *findFamily(const QString &method)
{
    const auto found = std::find_if(families.begin(), families.end(), [&method](const Family &family) {
        return method == family.readMethod || method == family.writeMethod;
    });
    return found == families.end() ? nullptr : &*found;
}

QString methodOf(const QJsonObject &request)
{
    return request.value(QLatin1String("method")).toString();
}

/// What a write request names, without what only steers the request; nothing when "param" does not suit the method.
std::optional<QJsonObject> writtenMembers(const Family &family, const QJsonObject &request)
{
    const QJsonValue param = request.value(QLatin1String("param"));
    const QJsonValue written = family.attributes.isEmpty() ? param : param.toObject().value(family.attributes);
    if (!written.isObject())
        return std::nullopt;
    QJsonObject members = written.toObject();
    for (const auto steering : {QLatin1String("channelid"), QLatin1String("bdefault"), QLatin1String("clienttype")})
        members.remove(steering);
    return members;
}

void merge(QJsonObject &target, const QJsonObject &members)
{
    for (auto it = members.begin(); it != members.end(); ++it)
        target.insert(it.key(), it.value());
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
    if (family.part.isEmpty()) {
        merge(object, members);
    } else if (!members.isEmpty()) {
        QJsonObject part = object.value(family.part).toObject();
        merge(part, members);
        object.insert(family.part, part);
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

    QJsonObject object = m_parameters.value(family->object).toObject();
    QJsonObject answer = errorAnswer(method, DeviceOk);
    if (method == family->readMethod) {
        answer.insert(QStringLiteral("result"), object);
        return answer;
    }
    const auto members = writtenMembers(*family, request);
    if (!members || !write(*family, object, *members))
        return errorAnswer(method, DeviceBadParameter);
    m_parameters.insert(family->object, object);
    return answer;
}

void SimulatedDevice::loseMember(const QJsonObject &request)
{
    const QString method = methodOf(request);
    const Family *family = findFamily(method);
    if (!family || method != family->writeMethod)
        return;
    const auto members = writtenMembers(*family, request);
    if (!members || members->isEmpty())
        return;
    const QString lost = members->constBegin().key();
    QJsonObject object = m_parameters.value(family->object).toObject();
    if (family->part.isEmpty()) {
        object.remove(lost);
    } else {
        QJsonObject part = object.value(family->part).toObject();
        part.remove(lost);
        object.insert(family->part, part);
    }
    m_parameters.insert(family->object, object);
}

QStringList SimulatedDevice::methods()
{
    QStringList names;
    for (const Family &family : families)
        names << family.readMethod << family.writeMethod;
    return names;
}

QJsonObject errorAnswer(const QString &method, int errorCode)
{
    return {{QStringLiteral("method"), method},
            {QStringLiteral("error"), QJsonObject{{QStringLiteral("errorcode"), errorCode}}}};
}

} // namespace device_fleet
