#pragma once

#include "../DevInfo.h"
#include "ClientSignOn.h"
#include "PinnedCertificate.h"

#include <QAbstractSocket>
#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QUrl>
#include <optional>

class QWebSocket;

namespace vms_sdk {

class LinkHost;

/// The connection to one device: dials, signs on, keeps it alive, dials again after a loss. Lives in the network
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
    void send(const QString &requestId, const QString &text);

    void dial(); ///< by the host, once per queueForDialling()
    void deadlineReached(); ///< by the host

signals:
    void answered(const QString &requestId, const QString &text);
    void statusChanged(const QString &devId, vms_sdk::DevStatus status);

private:
    enum class Phase
    {
        Resting,
        SettingUp,
        Online
    };

    QWebSocket *makeSocket();
    void onConnected();
    void onDisconnected();
    void onError(QAbstractSocket::SocketError error);
    void onSslErrors(const QList<QSslError> &errors);
    void onTextMessage(const QString &message);
    void onSignOnMessage(const QString &message);
    bool isFlood(int size);
    void onFrame(const QString &frameText);
    void onNotice(const QString &text);
    void sawTraffic();
    void ping();

    void queue();
    void lost(const QString &why);
    void refused(const QString &why);
    void rest(DevStatus status, int closeCode);
    void setStatus(DevStatus status);
    void warn(const QString &what);

    DevInfo m_device;
    QUrl m_url;
    PinnedCertificate m_pin;
    LinkHost &m_host;
    Phase m_phase = Phase::Resting;
    DevStatus m_status = DevOffline;
    QWebSocket *m_socket = nullptr; ///< a fresh one per attempt; owned until the host closes it
    std::optional<ClientSignOn> m_signOn;
    int m_losses = 0; ///< in a row, without traffic in between
    int m_unansweredPings = 0;
    QElapsedTimer m_second; ///< in which are counted:
    int m_messagesInSecond = 0;
    int m_bytesInSecond = 0;
    QSet<QString> m_warned; ///< since the last welcome
};

} // namespace vms_sdk
