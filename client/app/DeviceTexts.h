#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QCoreApplication>

namespace orda_client {

/// Devices in the words of the client's own window.
class DeviceTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::DeviceTexts)

public:
    static QString status(vms_sdk::DevStatus status);
    /// Safe to look at.
    static QString name(const vms_sdk::DevInfo &dev);
};

} // namespace orda_client
