#include "fleet/onvif/OnvifReaction.h"

#include "fleet/onvif/HttpServerConnection.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

namespace device_fleet {

using vms_sdk::XmlElement;
using namespace vms_sdk::onvif;

namespace {

constexpr int hugeTextBytes = 5 << 20; // beyond the 4 MiB that a client takes

OnvifReaction dropAndReturn(const XmlElement &operation, const QString &path, OnvifDevice &device,
                            const FaultRule &fault)
{
    const CameraState before = device.state();
    if (fault.returnWith != ReturnWith::OldSettings)
        device.answer(operation, path);
    if (fault.returnWith == ReturnWith::MissingMember)
        device.loseFirstChange(before);
    OnvifReaction reaction;
    reaction.isCut = true;
    reaction.offLineFor = fault.delay;
    return reaction;
}

/// The answer to an operation that nobody asked for.
OnvifReply foreignReply(const XmlElement &operation, OnvifDevice &device)
{
    const bool isServices = operation.name == QLatin1String("GetServices");
    const XmlElement other(tds, isServices ? "GetHostname" : "GetServices");
    return device.answer(other, device.state().paths.value(QLatin1String(tds)));
}

/// Spoils a good answer.
OnvifReaction spoil(const XmlElement &operation, OnvifReply reply, OnvifDevice &device, bool closes,
                    const FaultRule &fault)
{
    const CameraTraits &traits = device.traits();
    OnvifReaction reaction;
    switch (fault.fault) {
    case Fault::Garbage:
        reaction.messages = httpMessage(200, {}, "<answer>]garbage", traits.isChunked, closes);
        return reaction;
    case Fault::LateAnswer:
        reaction.delay = fault.delay;
        break;
    case Fault::ForeignId:
        reply = foreignReply(operation, device);
        break;
    case Fault::ForeignMethod:
        reply.response.name = QStringLiteral("ForeignMethodResponse");
        break;
    case Fault::NoResult:
        reply.response.children.clear();
        break;
    case Fault::HugeAnswer:
        reply.response.append(
            XmlElement("urn:example:camera-extensions", "Padding", QString(hugeTextBytes, QLatin1Char('x'))));
        break;
    default:
        break;
    }
    const bool isTwice = fault.fault == Fault::AnswerTwice;
    if (isTwice)
        reaction.messages = onvifMessage(traits, reply, false);
    reaction.messages += onvifMessage(traits, reply, closes);
    return reaction;
}

} // namespace

QByteArray onvifMessage(const CameraTraits &traits, const OnvifReply &reply, bool closes)
{
    return httpMessage(reply.isFault() ? traits.faultStatus : 200, {}, soapDocument(reply, traits.style),
                       traits.isChunked, closes);
}

OnvifReaction reactTo(const XmlElement &operation, const QString &path, OnvifDevice &device, bool closes,
                      const std::optional<FaultRule> &fault)
{
    OnvifReaction reaction;
    if (!fault) {
        reaction.messages = onvifMessage(device.traits(), device.answer(operation, path), closes);
        return reaction;
    }
    switch (fault->fault) {
    case Fault::ErrorCode:
        reaction.messages =
            onvifMessage(device.traits(),
                         onvifFault({QStringLiteral("Receiver"), QStringLiteral("Action")},
                                    QStringLiteral("the camera failed with code %1").arg(fault->errorCode)),
                         closes);
        return reaction;
    case Fault::NoAnswer:
        return reaction;
    case Fault::DropConnection:
        reaction.isCut = true;
        return reaction;
    case Fault::DropAndReturn:
        return dropAndReturn(operation, path, device, *fault);
    default:
        return spoil(operation, device.answer(operation, path), device, closes, *fault);
    }
}

} // namespace device_fleet
