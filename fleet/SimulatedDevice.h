#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace device_fleet {

/// Error codes that a device answers with by itself; outside the range that the configuration module uses for its own.
enum DeviceError
{
    DeviceOk = 0,
    DeviceBadRequest = -1, ///< not a JSON object with a "method"
    DeviceUnknownMethod = -2,
    DeviceBadParameter = -3, ///< "param" does not suit the method, or names a stream that the device does not have
};

/// The parameters of one device and the methods that read and write them. Plain data without sockets, bound to no
/// thread.
///
/// Parameters are kept as objects ("audioIn", "video", …), each of them being the whole "result" of its reading method.
/// A write changes the members that it names and leaves the others; "channelid", "bdefault" and "clienttype" steer a
/// request and are not stored. Entries of "streams" are matched by "streamid".
class SimulatedDevice
{
public:
    SimulatedDevice(QString id, QJsonObject parameters);

    const QString &id() const { return m_id; }
    /// All parameter objects by name.
    const QJsonObject &parameters() const { return m_parameters; }

    /// @param request the whole request: "method" and, depending on the method, "param"
    /// @return the whole answer: "method", "error" and, after a successful read, "result"
    QJsonObject answer(const QJsonObject &request);

    /// Loses the first member that this write request names; nothing for any other request.
    void loseMember(const QJsonObject &request);

    /// The names of all methods.
    static QStringList methods();

private:
    QString m_id;
    QJsonObject m_parameters;
};

/// An answer without a result.
QJsonObject errorAnswer(const QString &method, int errorCode);

} // namespace device_fleet
