#pragma once

#include <QObject>
#include <QVariant>

namespace vms_sdk {

/// What the SDK has to tell, raised on the user-interface thread.
class ClientSignals : public QObject
{
    Q_OBJECT

public:
    static ClientSignals &instance();

signals:
    /// An answer, with the text as the device gave it. The module drops answers to ids of others, and second answers.
    void signalCommonRes(const QString &requestId, const QString &text);
    /// The waiting time of the id is over, which ends the device's part in the run; a run with a silent device would
    /// not end without it. The second argument is not looked at.
    void signalRequestTimeout(const QString &requestId, const QVariant &);
};

} // namespace vms_sdk
