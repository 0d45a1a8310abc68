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

/// A name in a value, such as "vnd:Motion", with its namespace, so that a lost declaration shows; other values as they
/// are.
QString valueNamed(const QString &value, const QHash<QString, QString> &uris)
{
    const int colon = value.indexOf(QLatin1Char(':'));
    const auto uri = uris.constFind(value.left(colon));
    return colon > 0 && uri != uris.constEnd() ? named(*uri, value.mid(colon + 1)) : value;
}

/// @param uris by the prefixes in force
void flatten(const XmlElement &element, const QString &path, QHash<QString, QString> uris, QJsonObject *flat)
{
    for (const XmlElement::Declaration &each : element.declarations)
        uris.insert(each.prefix, each.namespaceUri);
    const QString begin = path.isEmpty() ? QString() : path + QLatin1Char('/');
    for (const XmlElement::Attribute &each : element.attributes)
        flat->insert(begin + QLatin1Char('@') + named(each.namespaceUri, each.name), valueNamed(each.value, uris));
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
        flatten(child, begin + name, uris, flat);
    }
    const QString text = element.text();
    if (!path.isEmpty() && (!hasElements || !text.isEmpty()))
        flat->insert(path, valueNamed(text, uris));
}

} // namespace

QJsonObject dumpOf(const CameraState &state)
{
    QJsonObject dump{{QStringLiteral("DiscoveryMode"), state.discoveryMode}};
    for (const auto &[kind, configurations] : state.configurations) {
        QJsonObject byToken;
        for (const CameraConfiguration &each : configurations) {
            QJsonObject flat;
            flatten(each.element, {}, {}, &flat);
            byToken.insert(each.token, flat);
        }
        dump.insert(kind, byToken);
    }
    return dump;
}

} // namespace device_fleet
