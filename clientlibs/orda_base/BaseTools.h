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
    /// The time as "yyyy-MM-dd hh:mm:ss". @param withMilliseconds appends ".zzz" @param forFileName true for
    /// "yyyyMMdd-hhmmss", which has no blanks and colons
    QString strDatetime(const QDateTime &time, bool withMilliseconds, bool forFileName);
    /// Writes numbers from @p first on into column 0 of the rows that are not hidden, top to bottom. Sets only texts
    /// that change. A table with the property "computedOrderNumbers" numbers its rows itself and is only repainted.
    void updateTableOrderNum(XCOMMON::XTableWidget *table, int first);
    /// Raises signalDevRemoteConfigOpened().
    void openDevRemoteConfig(const QString &devId);

Q_SIGNALS:
    /// Asks the client to open the remote configuration of the device.
    void signalDevRemoteConfigOpened(const QString &devId);

private:
    BaseTools() = default;
};

} // namespace orda_base
