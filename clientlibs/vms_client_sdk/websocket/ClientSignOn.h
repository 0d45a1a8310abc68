#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <optional>

namespace vms_sdk {

/// The online state that a device reports in its welcome or in a notice; nothing when it is not one of the online
/// states.
std::optional<DevStatus> onlineStateFrom(const QJsonValue &reported);

/// The client's side of one sign-on: takes the device's messages and tells what to do. Has no socket.
class ClientSignOn
{
public:
    enum class Step
    {
        Answer, ///< send the text
        Welcome, ///< signed on; state() holds what the device reports
        Refused, ///< not the device of the record; the text says why
        Broken ///< not the sign-on protocol; the text says what is wrong
    };
    struct Outcome
    {
        Step step;
        QString text; ///< without secrets unless it is to be sent
        TroubleReason reason = TroubleReason::None; ///< of Refused and Broken
    };

    explicit ClientSignOn(DevInfo device);

    Outcome take(const QString &message);
    std::optional<DevStatus> state() const { return m_state; }

private:
    Outcome takeHello(const QJsonObject &hello);
    Outcome takeWelcome(const QJsonObject &welcome);

    DevInfo m_device;
    QByteArray m_deviceNonce, m_clientNonce;
    std::optional<DevStatus> m_state;
};

} // namespace vms_sdk
