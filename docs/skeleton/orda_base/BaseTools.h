#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

namespace XCOMMON {
class XTableWidget;
}

namespace orda_base {

/// Small services.
class BaseTools : public QObject
{
    Q_OBJECT

public:
    static BaseTools &instance();

    /// Whether requests reach a device in this state. @param status a vms_sdk::DevStatus
    bool isDevOnline(int status);
    /// The time of an entry in the record: the module gives false twice.
    QString strDatetime(const QDateTime &time, bool withMilliseconds, bool forFileName);
    /// Called after rows came, went or were sorted, with 1. The list numbers its own rows, whatever is written into
    /// the cells of column 0; a table with the property "computedOrderNumbers" needs no renumbering.
    void updateTableOrderNum(XCOMMON::XTableWidget *table, int first);
    /// "Remote Set" in the list's menu: the client opens its screen for this device.
    void openDevRemoteConfig(const QString &devId);
};

} // namespace orda_base
