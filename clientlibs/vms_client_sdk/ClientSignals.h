#pragma once

#include <vms_client_sdk/DevInfo.h>
#include <vms_client_sdk/Export.h>
#include <vms_client_sdk/LinkTrouble.h>

#include <QObject>
#include <QVariant>

namespace vms_sdk {

/// What the SDK has to tell. Every signal is raised on the GUI thread, from its event loop.
class VMS_CLIENT_SDK_EXPORT ClientSignals : public QObject
{
    Q_OBJECT

public:
    static ClientSignals &instance();

Q_SIGNALS:
    /// A device's answer, verbatim. Comes for every answer, those to ids that nobody awaits included, and as often as
    /// the device answers.
    void signalCommonRes(const QString &requestId, const QString &text);
    /// The waiting time of @p requestId is over, answered or not. The second argument is empty.
    void signalRequestTimeout(const QString &requestId, const QVariant &);
    void signalDevStatusChanged(const QString &devId, vms_sdk::DevStatus status);
    /// Why the device is not connected, right before its change to a state that is not online. Not every transport
    /// tells it. It holds until the next one, or until the device is online.
    void signalDevTroubled(const QString &devId, const vms_sdk::LinkTrouble &trouble);
    /// A device whose record has no serial number has said its own; it is online next.
    void signalDevIdentified(const QString &devId, const QString &serialNumber);

private:
    ClientSignals();
};

} // namespace vms_sdk
