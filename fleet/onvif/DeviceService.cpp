#include "fleet/onvif/CameraServices.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QUrl>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

/// An operation and what it needs to answer.
struct Call
{
    CameraState &state;
    const XmlElement &operation;
    const QString &address;
    const QDateTime &now;
};

void appendDateTime(XmlElement *parent, const char *name, const QDateTime &moment)
{
    XmlElement &whole = parent->append(XmlElement(tt, name));
    XmlElement &time = whole.append(XmlElement(tt, "Time"));
    time.append(XmlElement(tt, "Hour", QString::number(moment.time().hour())));
    time.append(XmlElement(tt, "Minute", QString::number(moment.time().minute())));
    time.append(XmlElement(tt, "Second", QString::number(moment.time().second())));
    XmlElement &date = whole.append(XmlElement(tt, "Date"));
    date.append(XmlElement(tt, "Year", QString::number(moment.date().year())));
    date.append(XmlElement(tt, "Month", QString::number(moment.date().month())));
    date.append(XmlElement(tt, "Day", QString::number(moment.date().day())));
}

void systemDateAndTime(const Call &call, XmlElement *response)
{
    XmlElement &all = response->append(XmlElement(tds, "SystemDateAndTime"));
    all.append(XmlElement(tt, "DateTimeType", text("Manual")));
    all.append(XmlElement(tt, "DaylightSavings", text("false")));
    all.append(XmlElement(tt, "TimeZone")).append(XmlElement(tt, "TZ", text("UTC0")));
    appendDateTime(&all, "UTCDateTime", call.now);
    appendDateTime(&all, "LocalDateTime", call.now);
}

void services(const Call &call, XmlElement *response)
{
    const QMap<QString, QString> &paths = call.state.paths;
    for (auto it = paths.begin(); it != paths.end(); ++it) {
        XmlElement &service = response->append(XmlElement(tds, "Service"));
        service.append(XmlElement(tds, "Namespace", it.key()));
        service.append(XmlElement(tds, "XAddr", call.address + it.value()));
        XmlElement &version = service.append(XmlElement(tds, "Version"));
        version.append(XmlElement(tt, "Major", text("2")));
        version.append(XmlElement(tt, "Minor", text("60")));
    }
}

void capabilities(const Call &call, XmlElement *response)
{
    const auto append = [&](XmlElement &all, const char *name, const char *service) -> XmlElement & {
        XmlElement &one = all.append(XmlElement(tt, name));
        one.append(XmlElement(tt, "XAddr", call.address + call.state.paths.value(text(service))));
        return one;
    };
    XmlElement &all = response->append(XmlElement(tds, "Capabilities"));
    append(all, "Device", tds);
    if (call.state.paths.contains(text(timg)))
        append(all, "Imaging", timg);
    XmlElement &streaming = append(all, "Media", trt).append(XmlElement(tt, "StreamingCapabilities"));
    streaming.append(XmlElement(tt, "RTPMulticast", text("false")));
    streaming.append(XmlElement(tt, "RTP_TCP", text("true")));
}

void deviceInformation(const Call &call, XmlElement *response)
{
    response->append(XmlElement(tds, "Manufacturer", call.state.manufacturer));
    response->append(XmlElement(tds, "Model", call.state.hardware));
    response->append(XmlElement(tds, "FirmwareVersion", text("2.4.1")));
    response->append(XmlElement(tds, "SerialNumber", call.state.serialNumber));
    response->append(XmlElement(tds, "HardwareId", text("1.0")));
}

void scopes(const Call &call, XmlElement *response)
{
    const QStringList all = scopesOf(call.state);
    for (const QString &scope : all) {
        XmlElement &one = response->append(XmlElement(tds, "Scopes"));
        one.append(XmlElement(tt, "ScopeDef", text("Configurable")));
        one.append(XmlElement(tt, "ScopeItem", scope));
    }
}

void hostname(const Call &call, XmlElement *response)
{
    XmlElement &information = response->append(XmlElement(tds, "HostnameInformation"));
    information.append(XmlElement(tt, "FromDHCP", text("false")));
    information.append(XmlElement(tt, "Name", call.state.deviceId));
}

void networkInterfaces(const Call &call, XmlElement *response)
{
    XmlElement &one = response->append(XmlElement(tds, "NetworkInterfaces"));
    one.setAttribute("token", text("eth0"));
    one.append(XmlElement(tt, "Enabled", text("true")));
    XmlElement &info = one.append(XmlElement(tt, "Info"));
    info.append(XmlElement(tt, "Name", text("eth0")));
    info.append(XmlElement(tt, "HwAddress", call.state.mac));
    XmlElement &ipv4 = one.append(XmlElement(tt, "IPv4"));
    ipv4.append(XmlElement(tt, "Enabled", text("true")));
    XmlElement &config = ipv4.append(XmlElement(tt, "Config"));
    XmlElement &manual = config.append(XmlElement(tt, "Manual"));
    manual.append(XmlElement(tt, "Address", QUrl(call.address).host()));
    manual.append(XmlElement(tt, "PrefixLength", text("24")));
    config.append(XmlElement(tt, "DHCP", text("false")));
}

void discoveryMode(const Call &call, XmlElement *response)
{
    response->append(XmlElement(tds, "DiscoveryMode", call.state.discoveryMode));
}

using Answer = void (*)(const Call &call, XmlElement *response);

const QMap<QString, Answer> &answers()
{
    static const QMap<QString, Answer> all{{text("GetSystemDateAndTime"), systemDateAndTime},
                                           {text("GetServices"), services},
                                           {text("GetCapabilities"), capabilities},
                                           {text("GetDeviceInformation"), deviceInformation},
                                           {text("GetScopes"), scopes},
                                           {text("GetHostname"), hostname},
                                           {text("GetNetworkInterfaces"), networkInterfaces},
                                           {text("GetDiscoveryMode"), discoveryMode}};
    return all;
}

OnvifReply setDiscoveryMode(CameraState &state, const XmlElement &operation)
{
    const QString mode = operation.textOf(tds, "DiscoveryMode");
    if (mode != QLatin1String("Discoverable") && mode != QLatin1String("NonDiscoverable"))
        return onvifFault({text("Sender"), text("InvalidArgVal")}, text("DiscoveryMode is none"));
    state.discoveryMode = mode;
    return emptyReply(operation);
}

} // namespace

std::optional<OnvifReply> deviceServiceReply(CameraState &state, const XmlElement &operation, const QString &address,
                                             const QDateTime &now)
{
    if (operation.name == QLatin1String("SetDiscoveryMode"))
        return setDiscoveryMode(state, operation);
    const Answer answer = answers().value(operation.name);
    if (!answer)
        return std::nullopt;
    OnvifReply reply = emptyReply(operation);
    answer({state, operation, address, now}, &reply.response);
    return reply;
}

QStringList deviceServiceOperations()
{
    return answers().keys() + QStringList{text("SetDiscoveryMode")};
}

QStringList scopesOf(const CameraState &state)
{
    const QString base = text("onvif://www.onvif.org/");
    const auto scope = [&base](const char *what, const QString &value) {
        return base + text(what) + QString::fromLatin1(QUrl::toPercentEncoding(value));
    };
    QStringList scopes{base + text("type/video_encoder"), base + text("Profile/Streaming"),
                       scope("hardware/", state.hardware), scope("location/", state.location)};
    if (!state.name.isEmpty())
        scopes.append(scope("name/", state.name));
    return scopes;
}

} // namespace device_fleet
