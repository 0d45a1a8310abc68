#pragma once

#include <vms_client_sdk/onvif/CameraCalls.h>

#include <QJsonObject>
#include <QStringList>

#include <functional>
#include <vector>

namespace vms_sdk {

struct OnvifOperation
{
    OnvifService service;
    XmlElement request;
};

/// A change of one configuration.
struct OnvifWrite
{
    OnvifOperation operation;
    std::function<void(const XmlElement &answer)> done; ///< to be called when the camera has taken it
};

/// What a write comes to.
struct OnvifPlan
{
    QString refused; ///< why nothing is to be written, printable; empty when it may be
    QStringList dropped; ///< members that the camera has no counterpart for: "stream0.smartencode"
    std::vector<OnvifWrite> writes; ///< in this order; they may be used as long as the family lives
};

/// What a family's methods mean at one camera, for one request. It asks for operations and is given the answers; it
/// sends nothing itself.
class OnvifFamily
{
public:
    virtual ~OnvifFamily() = default;

    /// Operations that only read, to be sent side by side; none when all has been read. The first call comes before
    /// any answer, the next ones each after takeAnswers().
    virtual std::vector<OnvifOperation> nextReads() = 0;
    /// The answers to nextReads(), in its order.
    virtual void takeAnswers(std::vector<XmlElement> answers) = 0;
    /// What the camera holds, in the family's keys: as read, and as changed by what was written since.
    virtual QJsonObject held() const = 0;
    /// @param param of the write request
    virtual OnvifPlan plan(const QJsonObject &param) = 0;
};

/// The members of @p param that are to be set: without those that only steer a request.
QJsonObject settingsOf(QJsonObject param);

/// The members of @p after that differ from @p before; of a list of objects the entries that differ, each with the
/// members that do and those called @p kept.
QJsonObject changedMembers(const QJsonObject &before, const QJsonObject &after, const QStringList &kept);

/// The namespace of a service's operations.
const char *namespaceOf(OnvifService service);

/// @p part of an answer, to be sent back under another name with all that is in it.
XmlElement takenOut(const XmlElement &answer, const XmlElement &part, const char *name);

} // namespace vms_sdk
