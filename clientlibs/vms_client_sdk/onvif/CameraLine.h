#pragma once

#include <vms_client_sdk/onvif/CameraCalls.h>
#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>

#include <QMap>
#include <QPointer>

#include <deque>
#include <memory>

namespace vms_sdk {

struct DevInfo;

/// The line to one camera: where its services are, what its clock says, and how the account is shown to it. Network
/// thread. Whoever owns the line also owns all who post on it.
class CameraLine
{
public:
    struct Reply : CallResult
    {
        TroubleReason reason = TroubleReason::None; ///< of a trouble, as far as it is known
        bool isRefused = false; ///< the account, or that there was none; a fault too
        bool takesTokens = false; ///< the refusal is one of WS-Security
        QByteArrayList challenges; ///< of HTTP
    };
    using Done = std::function<void(const Reply &reply)>;

    enum class Scheme
    {
        None,
        Digest,
        Token
    };

    CameraLine(const DevInfo &device, HttpExchanges &exchanges);

    const QUrl &url() const { return m_url; } ///< of the device service
    void forget(); ///< services, clock and scheme

    bool hasService(OnvifService service) const { return m_urls.contains(service); }
    /// Takes path and query of the address that the camera gives; its host would get the account. Addresses without a
    /// path are left out.
    void setService(OnvifService service, const QString &address);

    Scheme scheme() const { return m_scheme; }
    void useDigest(const DigestAuth &digest);
    void useTokens() { m_scheme = Scheme::Token; }

    /// Sends an operation with the account as agreed. What is refused only for an old nonce, or for a clock that was
    /// set meanwhile, is sent again: the camera has not done it. After a refusal by Digest one request at a time tries
    /// the account, until the camera takes it again: were it wrong now, many at once would lock it.
    /// @param isRepeatable, owner, done as CameraCalls::call() has them
    void post(OnvifService service, const XmlElement &operation, bool isRepeatable, QObject *owner, const Done &done);
    /// As post(), for a look at the account itself: it goes before those that wait for a trial.
    void postFirst(OnvifService service, const XmlElement &operation, QObject *owner, const Done &done);
    /// Asks, without an account, for the camera's clock, which is ours as long as it does not tell. A fault is an
    /// answer as well.
    void readClock(QObject *owner, const Done &done);

private:
    struct Request
    {
        XmlElement operation;
        QPointer<QObject> owner;
        Done done;
        OnvifService service;
        Scheme scheme;
        bool isRepeatable;
        bool isNonceFresh = false;
        bool isClockRead = false; ///< anew, after a refusal
        bool hasWaited = false; ///< so that a nonce may have become too old
        int stales = 0; ///< nonces that were too old
        qint64 clockOffset = 0;
        std::optional<DigestAuth> digest = {}; ///< to be used next
        std::shared_ptr<void> trial = {}; ///< of the account, while it goes on
    };

    void sendWaiting();
    void send(Request request);
    void onAnswer(const Request &request, const HttpAnswer &answer);
    bool sendWithNewNonce(const Request &request, const Reply &reply);
    void sendByNewClock(const Request &request, const Reply &reply);
    void takeClock(const XmlElement &answer);

    HttpExchanges &m_exchanges;
    QUrl m_url;
    QString m_userName, m_password, m_fingerprint;
    QMap<OnvifService, QUrl> m_urls;
    Scheme m_scheme = Scheme::None;
    std::optional<DigestAuth> m_digest;
    bool m_isNonceFresh = false; ///< the nonce of m_digest was not used yet
    std::deque<Request> m_waiting; ///< for the trial to end
    std::weak_ptr<void> m_trial; ///< gone when its request is
    bool m_isDoubted = false; ///< whether Digest still works
    bool m_hasTokenWorked = false;
    qint64 m_clockOffset = 0; ///< the camera's time less ours, in milliseconds
};

} // namespace vms_sdk
