#include "fleet/onvif/CameraServices.h"
#include "fleet/onvif/ConfigurationChecks.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <algorithm>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

QString osdName()
{
    return QLatin1String(osdKind);
}

/// A token that the operation names, in the operation's own namespace.
QString tokenIn(const XmlElement &operation, const char *name)
{
    return operation.textOf(operation.namespaceUri.toLatin1().constData(), name);
}

OnvifReply list(CameraState &state, const XmlElement &operation)
{
    const QString configuration = tokenIn(operation, "ConfigurationToken");
    if (!configuration.isEmpty() && !findConfiguration(state, QLatin1String(videoSourceKind), configuration))
        return unknownToken("NoConfig", configuration);
    const QString osd = tokenIn(operation, "OSDToken");
    if (!osd.isEmpty() && !findConfiguration(state, osdName(), osd))
        return unknownToken("NoConfig", osd);
    OnvifReply reply = emptyReply(operation);
    const bool isOne = operation.name == QLatin1String("GetOSD");
    for (const CameraConfiguration &each : state.configurations[osdName()]) {
        const bool isOfIt =
            configuration.isEmpty() || each.element.textOf(tt, "VideoSourceConfigurationToken") == configuration;
        if (isOfIt && (osd.isEmpty() || each.token == osd))
            reply.response.append(renamed(each.element, operation.namespaceUri.toLatin1().constData(),
                                          isOne ? osdName() : QStringLiteral("OSDs")));
    }
    return reply;
}

OnvifReply optionsOf(CameraState &state, const XmlElement &operation)
{
    const QString configuration = tokenIn(operation, "ConfigurationToken");
    if (!findConfiguration(state, QLatin1String(videoSourceKind), configuration))
        return unknownToken("NoConfig", configuration);
    OnvifReply reply = emptyReply(operation);
    reply.response.append(
        renamed(state.osdOptions.at(0), operation.namespaceUri.toLatin1().constData(), QStringLiteral("OSDOptions")));
    return reply;
}

bool isFull(CameraState &state, const XmlElement &osd)
{
    const QString type = textsAt(osd, QStringLiteral("TextString/Type")).value(0);
    const auto &present = state.configurations[osdName()];
    const auto most = [&state](const QString &attribute) {
        return textsAt(state.osdOptions.at(0), QStringLiteral("MaximumNumberOfOSDs/@") + attribute).value(0).toInt();
    };
    const auto ofType = std::count_if(present.begin(), present.end(), [&type](const CameraConfiguration &each) {
        return textsAt(each.element, QStringLiteral("TextString/Type")).value(0) == type;
    });
    return int(present.size()) >= most(QStringLiteral("Total"))
        || ofType >= most(type == QLatin1String("Plain") ? QStringLiteral("PlainText") : type);
}

OnvifReply store(CameraState &state, const XmlElement &operation, bool isNew)
{
    const XmlElement *sent = operation.child(operation.namespaceUri.toLatin1().constData(), "OSD");
    if (!sent)
        return onvifFault({QStringLiteral("Sender"), QStringLiteral("InvalidArgs")}, QStringLiteral("OSD is missing"));
    CameraConfiguration *present = findConfiguration(state, osdName(), sent->attribute("token"));
    if (!isNew && !present)
        return unknownToken("NoConfig", sent->attribute("token"));
    const QString configuration = sent->textOf(tt, "VideoSourceConfigurationToken");
    if (!findConfiguration(state, QLatin1String(videoSourceKind), configuration))
        return unknownToken("NoConfig", configuration);
    const QString why = whyNotAllowed(osdName(), true, *sent, state.osdOptions);
    if (!why.isEmpty())
        return onvifFault({QStringLiteral("Sender"), QStringLiteral("InvalidArgVal"), QStringLiteral("ConfigModify")},
                          why);
    XmlElement stored = renamed(vms_sdk::detached({&operation, sent}), tt, osdName());
    OnvifReply reply = emptyReply(operation);
    if (!isNew) {
        present->element = std::move(stored);
        return reply;
    }
    if (isFull(state, *sent))
        return onvifFault({QStringLiteral("Receiver"), QStringLiteral("Action"), QStringLiteral("MaxOSDs")},
                          QStringLiteral("there is no room for another OSD"));
    const QString token = QStringLiteral("NewOSD%1").arg(++state.osdsMade);
    stored.setAttribute("token", token);
    state.configurations[osdName()].push_back({token, std::move(stored), {}});
    reply.response.append(XmlElement(operation.namespaceUri.toLatin1().constData(), "OSDToken", token));
    return reply;
}

OnvifReply remove(CameraState &state, const XmlElement &operation)
{
    const QString token = tokenIn(operation, "OSDToken");
    auto &all = state.configurations[osdName()];
    const auto found =
        std::find_if(all.begin(), all.end(), [&token](const CameraConfiguration &each) { return each.token == token; });
    if (found == all.end())
        return unknownToken("NoConfig", token);
    all.erase(found);
    return emptyReply(operation);
}

} // namespace

std::optional<OnvifReply> osdReply(CameraState &state, const XmlElement &operation)
{
    if (state.osdOptions.empty() || !osdOperations().contains(operation.name))
        return std::nullopt;
    if (operation.name == QLatin1String("GetOSDOptions"))
        return optionsOf(state, operation);
    if (operation.name == QLatin1String("SetOSD"))
        return store(state, operation, false);
    if (operation.name == QLatin1String("CreateOSD"))
        return store(state, operation, true);
    if (operation.name == QLatin1String("DeleteOSD"))
        return remove(state, operation);
    if (operation.name == QLatin1String("GetOSD") && tokenIn(operation, "OSDToken").isEmpty())
        return unknownToken("NoConfig", {});
    return list(state, operation);
}

QStringList osdOperations()
{
    return {QStringLiteral("GetOSDs"), QStringLiteral("GetOSD"),    QStringLiteral("GetOSDOptions"),
            QStringLiteral("SetOSD"),  QStringLiteral("CreateOSD"), QStringLiteral("DeleteOSD")};
}

} // namespace device_fleet
