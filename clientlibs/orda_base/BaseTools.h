#pragma once

#include <orda_base/Export.h>

#include <QDateTime>
#include <QObject>

namespace XCOMMON {
class XTableWidget;
}

namespace orda_base {

/// Small services for all modules. GUI thread only.
class ORDA_BASE_EXPORT BaseTools : public QObject
{
    Q_OBJECT

public:
    static BaseTools &instance();

    /// @param status a vms_sdk::DevStatus
    bool isDevOnline(int status);
    /// "yyyy-MM-dd hh:mm:ss". @param withMilliseconds appends ".zzz" @param forFileName leaves out blanks and colons:
    /// "yyyyMMdd-hhmmss"
    QString strDatetime(const QDateTime &time, bool withMilliseconds, bool forFileName);
    /// Numbers the rows of column 0 that can be seen from @p first on, top to bottom. Touches only cells whose text
    /// changes. A table with the property "computedOrderNumbers" numbers itself and is only drawn anew.
    void updateTableOrderNum(XCOMMON::XTableWidget *table, int first);
    /// Raises signalDevRemoteConfigOpened().
    void openDevRemoteConfig(const QString &devId);

Q_SIGNALS:
    /// The client opens the device's remote-configuration screen.
    void signalDevRemoteConfigOpened(const QString &devId);

private:
    BaseTools() = default;
};

} // namespace orda_base
