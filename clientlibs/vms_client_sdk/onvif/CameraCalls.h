#pragma once

#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QObject>

#include <functional>

namespace vms_sdk {

/// The services of a camera that are used here.
enum class OnvifService
{
    Device,
    Media, ///< ver10
    Media2, ///< ver20
    Imaging
};

/// What came of one operation.
struct CallResult
{
    XmlElement answer; ///< such as GetOSDsResponse; empty unless it is there
    std::optional<SoapFault> fault; ///< the device's own refusal, rights that the account lacks included
    QString trouble; ///< there is no answer that can be read: why, a printable line
    qint64 bytes = 0; ///< of the answer as it came, and for each element as many as take the same memory
    bool mayBeDone = false; ///< with a trouble: the device may have done it all the same

    bool isGood() const { return !fault && trouble.isEmpty(); }
};

/// Operations at one camera that has signed on, as those who ask for them see it. Network thread.
class CameraCalls
{
public:
    using Done = std::function<void(const CallResult &result)>;

    virtual ~CameraCalls() = default;

    virtual bool hasService(OnvifService service) const = 0;
    /// @param operation such as GetOSDs; its namespace is the service's
    /// @param isRepeatable false for what must not reach the camera twice, such as CreateOSD
    /// @param owner, done as HttpExchanges::post() has them
    virtual void call(OnvifService service, const XmlElement &operation, bool isRepeatable, QObject *owner,
                      const Done &done) = 0;
};

} // namespace vms_sdk
