#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>
#include <vms_client_sdk/onvif/CameraLine.h>
#include <vms_client_sdk/onvif/OnvifSignOn.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <chrono>
#include <memory>

namespace vms_sdk {

class OnvifHost;
class OnvifRequest;

/// One camera: signs on, asks again and again whether it is still there, and carries requests out. Lives in the network
/// thread.
class OnvifLink : public QObject, public CameraCalls
{
    Q_OBJECT

public:
    OnvifLink(const DevInfo &device, OnvifHost &host);
    ~OnvifLink() override; ///< requests that wait end without an answer

    void start();
    void end(); ///< reports the camera offline; nothing comes after it
    void connectAgain(); ///< only after a refusal
    void connectNow(); ///< after a refusal, and in place of the rest of a pause
    /// Takes a record that differs from ours in nothing but that the camera's own serial number is, or is not yet, in
    /// it. @return false: another record
    bool takeOver(const DevInfo &device);
    /// Begins to carry a request out. @param limit that it may take
    void send(const QString &requestId, const QString &text, std::chrono::milliseconds limit);
    /// Ends those requests that nobody awaits any more.
    void endTimedOut(const QSet<QString> &requestIds);

    void signOn(); ///< by the host, once per place

    bool hasService(OnvifService service) const override;
    void call(OnvifService service, const XmlElement &operation, bool isRepeatable, QObject *owner,
              const Done &done) override;

Q_SIGNALS:
    void answered(const QString &requestId, const QString &text);
    void statusChanged(const QString &devId, vms_sdk::DevStatus status, const vms_sdk::LinkTrouble &trouble);
    void identified(const QString &devId, const QString &serialNumber);

private:
    enum class Phase
    {
        Resting,
        SigningOn, ///< in the queue, then at it
        Online
    };

    bool hasAddress() const;
    void queue();
    void onSignedOn(const OnvifSignOn::Outcome &outcome);
    void goOnline(const QString &serialNumber);
    void onTimer();
    void pollAfter(std::chrono::milliseconds longest, double leastShare);
    void poll();
    void onPolled(const CameraLine::Reply &reply);
    void onCalled(const CameraLine::Reply &reply);
    void sawAnswer();
    void checkDevice(); ///< account and serial number
    void onFinished(OnvifRequest *request, const QJsonObject &answer);
    void lost(TroubleReason reason, const QString &why);
    void refused(TroubleReason reason, const QString &why);
    void setTrouble(TroubleReason reason, const QString &why);
    void rest(DevStatus status);
    void endRequests();
    void setStatus(DevStatus status);
    void warn(const QString &what);

    DevInfo m_device; ///< with its own serial number, once that is known
    bool m_isSerialLearned = false;
    OnvifHost &m_host;
    CameraLine m_line;
    Phase m_phase = Phase::Resting;
    DevStatus m_status = DevOffline;
    LinkTrouble m_trouble; ///< since it was last online
    std::unique_ptr<OnvifSignOn> m_signOn;
    std::unique_ptr<QObject> m_session; ///< while online: owns its own exchanges
    QTimer m_timer; ///< of the pause, or of the next poll
    bool m_isPolling = false;
    bool m_isChecking = false;
    QElapsedTimer m_accountChecked;
    int m_misses = 0; ///< polls in a row without an answer
    int m_losses = 0; ///< since it answered last while online
    struct Request
    {
        QString id;
        std::shared_ptr<void> place; ///< OnvifHost::Place
    };
    QHash<OnvifRequest *, Request> m_requests; ///< under way
    QSet<QString> m_warned; ///< since it was last online
};

} // namespace vms_sdk
