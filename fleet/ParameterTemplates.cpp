#include "fleet/ParameterTemplates.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

// Outside the namespace, as the macro demands; a static library's resources are lost without it.
static void loadResource()
{
    Q_INIT_RESOURCE(device_fleet);
}

namespace device_fleet {

namespace {

QJsonObject parseResource()
{
    loadResource();
    QFile file(QStringLiteral(":/device_fleet/parameters.json"));
    QJsonParseError error;
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QJsonObject parsed = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("parameters.json: %s at byte %d", qPrintable(error.errorString()), error.offset);
    return parsed;
}

/// Replaces the choices in a template, depth first.
class Drawing
{
public:
    Drawing(const vms_sdk::DevInfo &device, QRandomGenerator &random)
        : m_device(device)
        , m_random(random)
    {
    }

    /// Undefined for a member that this device does not have.
    QJsonValue draw(const QJsonValue &part);

private:
    QJsonValue drawObject(const QJsonObject &object);
    QJsonValue drawFirst(const QJsonArray &entries, int count);
    QString deviceText(const QString &key) const;

    const vms_sdk::DevInfo &m_device;
    QRandomGenerator &m_random;
};

QJsonValue Drawing::draw(const QJsonValue &part)
{
    if (part.isArray())
        return drawFirst(part.toArray(), part.toArray().size());
    return part.isObject() ? drawObject(part.toObject()) : part;
}

QJsonValue Drawing::drawObject(const QJsonObject &object)
{
    const QString marker = object.isEmpty() ? QString() : object.begin().key(); // "$" sorts before all letters
    const QJsonValue argument = object.value(marker);
    if (marker == QLatin1String("$oneOf"))
        return draw(argument.toArray().at(m_random.bounded(argument.toArray().size())));
    if (marker == QLatin1String("$range"))
        return m_random.bounded(argument.toArray().at(0).toInt(), argument.toArray().at(1).toInt() + 1);
    if (marker == QLatin1String("$first"))
        return drawFirst(object.value(QLatin1String("of")).toArray(), draw(argument).toInt());
    if (marker == QLatin1String("$percent"))
        return m_random.bounded(100) < argument.toInt() ? draw(object.value(QLatin1String("value")))
                                                        : QJsonValue::Undefined;
    if (marker == QLatin1String("$device"))
        return deviceText(argument.toString());

    QJsonObject drawn;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QJsonValue value = draw(it.value());
        if (!value.isUndefined())
            drawn.insert(it.key(), value);
    }
    return drawn;
}

QJsonValue Drawing::drawFirst(const QJsonArray &entries, int count)
{
    QJsonArray drawn;
    for (int i = 0; i < count; ++i)
        drawn.append(draw(entries.at(i)));
    return drawn;
}

QString Drawing::deviceText(const QString &key) const
{
    if (key == QLatin1String("name"))
        return m_device.name.left(32); // the longest channel name
    if (key == QLatin1String("serialNumber"))
        return m_device.serialNumber;
    if (key == QLatin1String("ip"))
        return m_device.ip.isEmpty() ? QStringLiteral("192.168.1.64") : m_device.ip;
    // The locally administered range, numbered by the address.
    QString mac = QStringLiteral("02:00");
    for (int shift = 24; shift >= 0; shift -= 8)
        mac += QStringLiteral(":%1").arg((m_device.ipNumber >> shift) & 0xFF, 2, 16, QLatin1Char('0'));
    return mac;
}

} // namespace

const QVector<ParameterObject> &parameterObjects()
{
    static const QVector<ParameterObject> objects = [] {
        QVector<ParameterObject> all;
        const QJsonObject parsed = parseResource();
        for (auto it = parsed.begin(); it != parsed.end(); ++it) {
            const QJsonObject object = it->toObject();
            const auto text = [&object](const char *key) { return object.value(QLatin1String(key)).toString(); };
            all.append({it.key(), text("read"), text("write"), text("writtenUnder"), text("writtenPart"),
                        object.value(QLatin1String("members")).toObject()});
        }
        return all;
    }();
    return objects;
}

QJsonObject drawParameters(const vms_sdk::DevInfo &device, QRandomGenerator &random)
{
    Drawing drawing(device, random);
    QJsonObject drawn;
    for (const ParameterObject &object : parameterObjects())
        drawn.insert(object.name, drawing.draw(object.members));
    return drawn;
}

} // namespace device_fleet
