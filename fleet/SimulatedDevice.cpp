#include "fleet/SimulatedDevice.h"

#include "fleet/ParameterTemplates.h"

#include <QJsonArray>

#include <algorithm>

namespace device_fleet {

namespace {

const ParameterObject *findObject(const QString &method)
{
    const auto &objects = parameterObjects();
    const auto found = std::find_if(objects.begin(), objects.end(), [&method](const ParameterObject &object) {
        return method == object.readMethod || method == object.writeMethod;
    });
    return found == objects.end() ? nullptr : &*found;
}

QString methodOf(const QJsonObject &request)
{
    return request.value(QLatin1String("method")).toString();
}

/// What a write request names, without what only steers the request; nothing when "param" does not suit the method.
std::optional<QJsonObject> writtenMembers(const ParameterObject &described, const QJsonObject &request)
{
    const QJsonValue param = request.value(QLatin1String("param"));
    const QJsonValue written =
        described.writtenUnder.isEmpty() ? param : param.toObject().value(described.writtenUnder);
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
bool write(const ParameterObject &described, QJsonObject &object, QJsonObject members)
{
    const QLatin1String streamsKey("streams");
    if (members.value(streamsKey).isArray()) {
        QJsonArray streams = object.value(streamsKey).toArray();
        if (!mergeStreams(streams, members.value(streamsKey).toArray()))
            return false;
        members.insert(streamsKey, streams);
    }
    if (described.writtenPart.isEmpty()) {
        merge(object, members);
    } else if (!members.isEmpty()) {
        QJsonObject part = object.value(described.writtenPart).toObject();
        merge(part, members);
        object.insert(described.writtenPart, part);
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
    const ParameterObject *described = findObject(method);
    if (!described)
        return errorAnswer(method, DeviceUnknownMethod);

    QJsonObject object = m_parameters.value(described->name).toObject();
    QJsonObject answer = errorAnswer(method, DeviceOk);
    if (method == described->readMethod) {
        answer.insert(QStringLiteral("result"), object);
        return answer;
    }
    const auto members = writtenMembers(*described, request);
    if (!members || !write(*described, object, *members))
        return errorAnswer(method, DeviceBadParameter);
    m_parameters.insert(described->name, object);
    return answer;
}

void SimulatedDevice::loseMember(const QJsonObject &request)
{
    const QString method = methodOf(request);
    const ParameterObject *described = findObject(method);
    if (!described || method != described->writeMethod)
        return;
    const auto members = writtenMembers(*described, request);
    if (!members || members->isEmpty())
        return;
    const QString lost = members->constBegin().key();
    QJsonObject object = m_parameters.value(described->name).toObject();
    if (described->writtenPart.isEmpty()) {
        object.remove(lost);
    } else {
        QJsonObject part = object.value(described->writtenPart).toObject();
        part.remove(lost);
        object.insert(described->writtenPart, part);
    }
    m_parameters.insert(described->name, object);
}

QStringList SimulatedDevice::methods()
{
    QStringList names;
    for (const ParameterObject &object : parameterObjects())
        names << object.readMethod << object.writeMethod;
    return names;
}

QJsonObject errorAnswer(const QString &method, int errorCode)
{
    return {{QStringLiteral("method"), method},
            {QStringLiteral("error"), QJsonObject{{QStringLiteral("errorcode"), errorCode}}}};
}

} // namespace device_fleet
