#include <vms_client_sdk/ClientSignals.h>

namespace vms_sdk {

ClientSignals::ClientSignals()
{
    // Queued connections and QMetaType::type() find these types by their names.
    qRegisterMetaType<DevStatus>("vms_sdk::DevStatus");
    qRegisterMetaType<LinkTrouble>("vms_sdk::LinkTrouble");
    qRegisterMetaType<DevInfo>("vms_sdk::DevInfo");
    qRegisterMetaType<QList<DevInfo>>("QList<vms_sdk::DevInfo>");
}

ClientSignals &ClientSignals::instance()
{
    static ClientSignals signalsOfTheSdk;
    return signalsOfTheSdk;
}

} // namespace vms_sdk
