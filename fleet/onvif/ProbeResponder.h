#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QHostAddress>
#include <QObject>
#include <QQueue>
#include <QTimer>
#include <QUdpSocket>

namespace device_fleet {

class OnvifDevice;
class OnvifSite;

/// Answers searches for cameras (WS-Discovery) that arrive by multicast, for each camera of the site that is
/// discoverable. A probe without a message id, or for other types or scopes, gets no answer.
class ProbeResponder : public QObject
{
    Q_OBJECT

public:
    /// @param site must outlive this
    ProbeResponder(const OnvifSite &site, QObject *parent);

    /// @return a text for the user, empty when probes are listened to on all interfaces that can do multicast
    QString start();

private:
    struct Answer
    {
        QByteArray datagram;
        QHostAddress to;
        quint16 port;
    };

    void readProbes();
    void answer(const vms_sdk::XmlElement &envelope, const QHostAddress &to, quint16 port);
    void sendSome();

    const OnvifSite &m_site;
    QUdpSocket m_socket;
    QQueue<Answer> m_answers;
    QTimer m_sending;
};

} // namespace device_fleet
