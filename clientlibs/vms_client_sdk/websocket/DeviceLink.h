#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>
#include <vms_client_sdk/PinnedCertificate.h>
#include <vms_client_sdk/websocket/ClientSignOn.h>

#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QUrl>

#include <optional>

QT_BEGIN_NAMESPACE
class QSslError;
QT_END_NAMESPACE

namespace vms_sdk {

class LinkHost;
class WebSocketConnection;

/// The connection to one device: dials, signs on, keeps it alive, dials again after a loss. Lives in its host's
/// thread.
class DeviceLink : public QObject
{
    Q_OBJECT

public:
    DeviceLink(const DevInfo &device, LinkHost &host);
    ~DeviceLink() override;

    const DevInfo &device() const { return m_device; }

    void start();
    void end(); ///< closes the connection and reports the device offline; nothing comes after it
    void connectAgain(); ///< only after a refusal
    void dialNow(); ///< after a refusal, and in place of the rest of a pause
    void send(const QString &requestId, const QString &text);

    void dial(); ///< by the host, once per queueForDialling()
    void deadlineReached(); ///< by the host
    void setReading(bool isReading); ///< by the host
    void cut(const QString &why); ///< for what the device does; dialled again later than after a loss

Q_SIGNALS:
    void answered(const QString &requestId, const QString &text);
    void statusChanged(const QString &devId, vms_sdk::DevStatus status, const vms_sdk::LinkTrouble &trouble);

private:
    enum class Phase
    {
        Resting,
        Connecting, ///< in the queue, then TCP and TLS
        SigningOn, ///< the line is up: handshake and sign-on
        Online
    };

    bool hasAddress() const;
    WebSocketConnection *makeConnection();
    void onLineUp();
    void onEnded(int code, const QString &why, TroubleReason reason);
    void onSslErrors(const QList<QSslError> &errors);
    void onText(const QByteArray &message);
    void onSignOnMessage(const QByteArray &message);
    void signedOn();
    void onFrame(const QByteArray &message);
    void onNotice(const QByteArray &text);
    void onAnswer(const QString &requestId, const QByteArray &text);
    void sawTraffic();
    void ping();
    void queue();
    void lost(TroubleReason reason, const QString &why);
    void refused(TroubleReason reason, const QString &why);
    void setTrouble(TroubleReason reason, const QString &why);
    void rest(DevStatus status, int closeCode);
    void setStatus(DevStatus status);
    void warn(const QString &what);

    DevInfo m_device;
    QUrl m_url;
    PinnedCertificate m_pin;
    LinkHost &m_host;
    Phase m_phase = Phase::Resting;
    DevStatus m_status = DevOffline;
    LinkTrouble m_trouble; ///< since it was last online
    QString m_certificateFault; ///< of this attempt
    WebSocketConnection *m_connection = nullptr; ///< a fresh one per attempt; owned until the host closes it
    std::optional<ClientSignOn> m_signOn;
    bool m_hasPlace = false; ///< is one of the few links that are dialled at a time
    bool m_wasOnline = false; ///< since it was last cut
    int m_losses = 0; ///< since there was traffic last
    int m_cuts = 0; ///< how often it has exceeded its limits, since it last kept them for a while
    QElapsedTimer m_onlineFor;
    int m_unansweredPings = 0;
    QStringList m_requestIds; ///< sent to this device, the latest first
    QSet<QString> m_warned; ///< since the last welcome
};

} // namespace vms_sdk
