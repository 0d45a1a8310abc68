#include "fleet/onvif/StateDump.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QHash>

namespace device_fleet {

using vms_sdk::XmlElement;

namespace {

QString named(const QString &uri, const QString &name)
{
    if (uri.isEmpty() || uri == QLatin1String(vms_sdk::onvif::tt))
        return name;
    if (uri == QLatin1String("urn:example:camera-extensions"))
        return QStringLiteral("vendor:") + name;
    return QStringLiteral("{%1}%2").arg(uri, name);
}

void flatten(const XmlElement &element, const QString &path, QJsonObject *flat)
{
    const QString begin = path.isEmpty() ? QString() : path + QLatin1Char('/');
    for (const XmlElement::Attribute &each : element.attributes)
        flat->insert(begin + QLatin1Char('@') + named(each.namespaceUri, each.name), each.value);
    QHash<QString, int> counts;
    bool hasElements = false;
    for (const XmlElement &child : element.children) {
        if (child.isText())
            continue;
        hasElements = true;
        QString name = named(child.namespaceUri, child.name);
        const int count = ++counts[name];
        if (count > 1)
            name += QStringLiteral("[%1]").arg(count);
        flatten(child, begin + name, flat);
    }
    const QString text = element.text();
    if (!path.isEmpty() && (!hasElements || !text.isEmpty()))
        flat->insert(path, text);
}

} // namespace

QJsonObject dumpOf(const CameraState &state)
{
    QJsonObject dump{{QStringLiteral("DiscoveryMode"), state.discoveryMode}};
    for (const auto &[kind, configurations] : state.configurations) {
        QJsonObject byToken;
        for (const CameraConfiguration &each : configurations) {
            QJsonObject flat;
            flatten(each.element, {}, &flat);
            byToken.insert(each.token, flat);
        }
        dump.insert(kind, byToken);
    }
    return dump;
}

} // namespace device_fleet
