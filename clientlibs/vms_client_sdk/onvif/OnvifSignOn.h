#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>
#include <vms_client_sdk/onvif/CameraLine.h>

#include <QObject>

#include <functional>

namespace vms_sdk {

/// Of an answer to GetDeviceInformation.
QString serialNumberFrom(const XmlElement &answer);

/// One sign-on at a camera: its clock, where its services are, which way it wants the account shown, and its serial
/// number. Each way that the camera asks for is tried once: cameras lock accounts after a few failures. Ends with its
/// deletion, or with done.
class OnvifSignOn : public QObject
{
    Q_OBJECT

public:
    struct Outcome
    {
        enum class Kind
        {
            SignedOn,
            Refused, ///< trying again would not help
            Failed
        };
        Kind kind;
        QString text; ///< why it is refused or has failed; texts of the camera in it
        TroubleReason reason = TroubleReason::None; ///< likewise
        QString serialNumber = {}; ///< of a camera that has signed on; may be empty
    };
    using Done = std::function<void(const Outcome &outcome)>;

    /// @param device with the serial number that the camera must have; empty: any
    /// @param line must outlive this; afterwards it is ready for use
    OnvifSignOn(DevInfo device, CameraLine &line, Done done, QObject *parent);

    void start();

private:
    using Next = void (OnvifSignOn::*)(const CameraLine::Reply &reply);

    void ask(OnvifService service, const XmlElement &operation, Next next);
    void tryNextWay(OnvifService service, const XmlElement &operation, Next next, const CameraLine::Reply &reply);
    void onClock(const CameraLine::Reply &reply);
    void onServices(const CameraLine::Reply &reply);
    void onCapabilities(const CameraLine::Reply &reply);
    void askForDevice();
    void onDevice(const CameraLine::Reply &reply);
    void onProfiles(const CameraLine::Reply &reply);
    void finish();
    /// @return false: it is none, and the sign-on has failed
    bool isAnswer(const CameraLine::Reply &reply, const char *name);
    void fail(const QString &text, TroubleReason reason);
    void refuse(const QString &text, TroubleReason reason);

    DevInfo m_device;
    CameraLine &m_line;
    Done m_done;
    std::optional<DigestAuth> m_digest; ///< asked for and not tried yet
    bool m_takesTokens = false; ///< likewise
    bool m_takesBasic = false;
    QString m_serialNumber;
};

} // namespace vms_sdk
