#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QDateTime>

#include <optional>

namespace vms_sdk {

/// An account as WS-UsernameToken shows it: the password itself does not travel.
struct UsernameToken
{
    QString userName;
    QByteArray digest; ///< base64(SHA-1(nonce + created + UTF-8 password))
    QByteArray nonce; ///< base64 of 16 random bytes
    QString created; ///< UTC, by the clock of the device
};

/// A token that was never used before.
/// @param deviceTime what the device's clock says now
UsernameToken makeUsernameToken(const QString &userName, const QString &password, const QDateTime &deviceTime);

/// A request: one operation in an envelope.
QByteArray soapRequest(const XmlElement &operation, const std::optional<UsernameToken> &token = {});

/// An answer that says what went wrong.
struct SoapFault
{
    QStringList codes; ///< from the general one to the particular, local names: "Sender", "InvalidArgVal", "NoConfig"
    QString reason; ///< for people, in the device's words; not safe to print

    /// Whether one of the codes is @p name.
    bool is(const char *name) const;
    /// Codes and reason in one printable line: "InvalidArgVal/ConfigModify: Frame rate out of range".
    QString text() const;
};

/// What is in an answer.
struct SoapAnswer
{
    XmlElement body; ///< the first element of the body, detached; empty after a fault or an error
    std::optional<SoapFault> fault;
    QString error; ///< why it is no answer, printable; empty when it is one
    int count = 0; ///< of elements, attributes and declarations
};

SoapAnswer readSoapAnswer(const QByteArray &document);

} // namespace vms_sdk
