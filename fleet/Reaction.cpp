#include "fleet/Reaction.h"

#include "fleet/SimulatedDevice.h"

#include <QJsonDocument>

namespace device_fleet {

namespace {

QString toText(const QJsonObject &answer)
{
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

Reaction dropAndReturn(const QJsonObject &request, SimulatedDevice &device, const FaultRule &fault)
{
    if (fault.returnWith != ReturnWith::OldSettings)
        device.answer(request);
    if (fault.returnWith == ReturnWith::MissingMember)
        device.loseMember(request);
    return {{}, {}, true, fault.delay};
}

/// Spoils a good answer.
Reaction spoil(const QString &requestId, QJsonObject answer, const FaultRule &fault)
{
    Reaction reaction{{{requestId, {}}}};
    vms_sdk::DeviceFrame &frame = reaction.frames.front();
    switch (fault.fault) {
    case Fault::Garbage:
        frame.text = QStringLiteral("{\"method\": ]garbage");
        return reaction;
    case Fault::LateAnswer:
        reaction.delay = fault.delay;
        break;
    case Fault::ForeignId:
        frame.requestId = QStringLiteral("{00000000-0000-0000-0000-000000000000}");
        break;
    case Fault::ForeignMethod:
        answer.insert(QStringLiteral("method"), QStringLiteral("foreign_method"));
        break;
    case Fault::NoResult:
        answer.remove(QStringLiteral("result"));
        break;
    case Fault::HugeAnswer:
        answer.insert(QStringLiteral("padding"), QString(int(vms_sdk::maxFrameBytes), QLatin1Char('x')));
        break;
    default:
        break;
    }
    frame.text = toText(answer);
    if (fault.fault == Fault::AnswerTwice)
        reaction.frames.push_back(reaction.frames.front());
    return reaction;
}

} // namespace

Reaction reactTo(const QString &requestId, const QJsonObject &request, SimulatedDevice &device,
                 const std::optional<FaultRule> &fault)
{
    if (!fault)
        return {{{requestId, toText(device.answer(request))}}};
    switch (fault->fault) {
    case Fault::ErrorCode:
        return {
            {{requestId, toText(errorAnswer(request.value(QLatin1String("method")).toString(), fault->errorCode))}}};
    case Fault::NoAnswer:
        return {};
    case Fault::DropConnection:
        return {{}, {}, true};
    case Fault::DropAndReturn:
        return dropAndReturn(request, device, *fault);
    default:
        return spoil(requestId, device.answer(request), *fault);
    }
}

} // namespace device_fleet
