#include <vms_client_sdk/websocket/ClientSignOn.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/SignOn.h>
#include <vms_client_sdk/websocket/AnswerCheck.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace vms_sdk {

namespace {

/// The sender is not known yet: its texts must not fill the log.
QString quoted(const QString &text)
{
    constexpr int longest = 64;
    return QLatin1Char('"') + escaped(text.left(longest)) + QLatin1Char('"');
}

} // namespace

std::optional<DevStatus> onlineStateFrom(const QJsonValue &reported)
{
    for (const DevStatus state : {DevOnline, DevDefaultPassword, DevLocked})
        if (reported.toInt(DevOffline) == state)
            return state;
    return std::nullopt;
}

ClientSignOn::ClientSignOn(DevInfo device)
    : m_device(std::move(device))
{
}

ClientSignOn::Outcome ClientSignOn::take(const QString &message)
{
    const QByteArray text = message.toUtf8();
    if (const AnswerCheck check = checkAnswer(text); check.fault)
        return {Step::Broken, QStringLiteral("its message %1").arg(QLatin1String(check.fault)), TroubleReason::SignOn};
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    const QLatin1String expected(m_deviceNonce.isEmpty() ? "hello" : "welcome");
    const QJsonValue content = object.value(expected);
    if (!content.isObject())
        return {Step::Broken, QStringLiteral("no \"%1\" where it is due").arg(expected), TroubleReason::SignOn};
    return m_deviceNonce.isEmpty() ? takeHello(content.toObject()) : takeWelcome(content.toObject());
}

ClientSignOn::Outcome ClientSignOn::takeHello(const QJsonObject &hello)
{
    const QString serial = hello.value(QLatin1String("serial")).toString();
    if (!m_device.serialNumber.isEmpty() && serial != m_device.serialNumber)
        return {Step::Refused,
                QStringLiteral("its serial number is %1, not %2").arg(quoted(serial), quoted(m_device.serialNumber)),
                TroubleReason::SerialNumber};

    m_deviceNonce = hello.value(QLatin1String("nonce")).toString().toUtf8();
    if (!isNonceLongEnough(m_deviceNonce))
        return {Step::Refused, QStringLiteral("its nonce is too short or not base64"), TroubleReason::SignOn};

    m_clientNonce = makeNonce();
    const QByteArray proof = signOnProof(SignOnSide::Client, m_device.password, m_deviceNonce, m_clientNonce);
    const QJsonObject auth{{QStringLiteral("user"), m_device.userName},
                           {QStringLiteral("nonce"), QString::fromLatin1(m_clientNonce)},
                           {QStringLiteral("proof"), QString::fromLatin1(proof)}};
    const QJsonDocument answer(QJsonObject{{QStringLiteral("auth"), auth}});
    return {Step::Answer, QString::fromUtf8(answer.toJson(QJsonDocument::Compact))};
}

ClientSignOn::Outcome ClientSignOn::takeWelcome(const QJsonObject &welcome)
{
    const QByteArray proof = welcome.value(QLatin1String("proof")).toString().toUtf8();
    if (!isSameProof(proof, signOnProof(SignOnSide::Device, m_device.password, m_deviceNonce, m_clientNonce)))
        return {Step::Refused, QStringLiteral("it does not prove that it knows the password"), TroubleReason::SignOn};
    m_state = onlineStateFrom(welcome.value(QLatin1String("state")));
    return {Step::Welcome, {}};
}

} // namespace vms_sdk
