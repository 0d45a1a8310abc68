#include "fleet/onvif/OnvifDevice.h"

#include "fleet/onvif/CameraServices.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <algorithm>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

/// @return whether there was something to take back
bool takeBackFirstChange(XmlElement *now, const XmlElement &before)
{
    for (XmlElement::Attribute &attribute : now->attributes) {
        for (const XmlElement::Attribute &old : before.attributes) {
            if (attribute.name == old.name && attribute.namespaceUri == old.namespaceUri
                && attribute.value != old.value) {
                attribute.value = old.value;
                return true;
            }
        }
    }
    if (now->content != before.content) {
        now->content = before.content;
        return true;
    }
    const std::size_t both = std::min(now->children.size(), before.children.size());
    for (std::size_t i = 0; i < both; ++i)
        if (now->children[i].name == before.children[i].name
            && takeBackFirstChange(&now->children[i], before.children[i]))
            return true;
    return false;
}

} // namespace

OnvifDevice::OnvifDevice(CameraState state)
    : m_state(std::move(state))
{
}

QDateTime OnvifDevice::now() const
{
    return QDateTime::currentDateTimeUtc().addSecs(m_state.traits.clockOffset.count());
}

QString OnvifDevice::url() const
{
    return m_address + m_state.paths.value(QLatin1String(tds));
}

bool OnvifDevice::hasPath(const QString &path) const
{
    return std::find(m_state.paths.begin(), m_state.paths.end(), path) != m_state.paths.end();
}

OnvifReply OnvifDevice::answer(const XmlElement &operation, const QString &path)
{
    std::optional<OnvifReply> reply;
    if (m_state.paths.value(operation.namespaceUri) == path) {
        if (operation.namespaceUri == QLatin1String(tds))
            reply = deviceServiceReply(m_state, operation, m_address, now());
        else if (operation.namespaceUri == QLatin1String(timg))
            reply = imagingServiceReply(m_state, operation);
        else
            reply = mediaServiceReply(m_state, operation, m_address);
    }
    if (reply)
        return *reply;
    return onvifFault({QStringLiteral("Sender"), QStringLiteral("ActionNotSupported")},
                      QStringLiteral("%1 is not supported here").arg(operation.name));
}

void OnvifDevice::loseFirstChange(const CameraState &before)
{
    for (auto &[kind, configurations] : m_state.configurations) {
        const auto old = before.configurations.find(kind);
        if (old == before.configurations.end())
            continue;
        const std::size_t both = std::min(configurations.size(), old->second.size());
        for (std::size_t i = 0; i < both; ++i)
            if (takeBackFirstChange(&configurations[i].element, old->second[i].element))
                return;
    }
}

bool OnvifDevice::isOpen(const QString &operation) const
{
    const bool isDirectory = operation == QLatin1String("GetServices") || operation == QLatin1String("GetCapabilities");
    return operation == QLatin1String("GetSystemDateAndTime") || operation == QLatin1String("GetHostname")
        || (isDirectory && !m_state.traits.hidesServices);
}

QStringList OnvifDevice::operations()
{
    QStringList all =
        deviceServiceOperations() + mediaServiceOperations() + osdOperations() + imagingServiceOperations();
    all.removeDuplicates();
    return all;
}

CameraConfiguration *findConfiguration(CameraState &state, const QString &kind, const QString &token)
{
    auto &all = state.configurations[kind];
    const auto found =
        std::find_if(all.begin(), all.end(), [&token](const CameraConfiguration &each) { return each.token == token; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace device_fleet
