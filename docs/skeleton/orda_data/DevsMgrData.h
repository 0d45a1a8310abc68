#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QList>
#include <QString>

namespace orda_data {

/// The device store. Its changes are raised by DataSignals.
class DevsMgrData
{
public:
    static DevsMgrData &instance();

    /// All records, or those of the devices that are online, in an order that stays. Called when a form is made, when
    /// the enterprise's status has come, and for an empty list, which says why it is empty.
    QList<vms_sdk::DevInfo> getAllDevs(bool onlineOnly) const;
    /// The record with an empty id when @p devId is unknown. Called when a state has changed, and for each result.
    vms_sdk::DevInfo getDevInfoById(const QString &devId) const;
    /// A state that is not online when @p devId is unknown. Called whenever the module looks whether a device belongs
    /// into the list.
    vms_sdk::DevStatus getDevStatus(const QString &devId) const;
};

} // namespace orda_data
