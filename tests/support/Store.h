#pragma once

#include <orda_data/DevsMgrData.h>

/// Forgets all devices: the store outlives a test.
inline void clearStore()
{
    auto &store = orda_data::DevsMgrData::instance();
    const QList<vms_sdk::DevInfo> devices = store.getAllDevs(false);
    for (const vms_sdk::DevInfo &dev : devices)
        store.deleteDevs({dev.id});
}
