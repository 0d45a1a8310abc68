#pragma once

#include <vms_client_sdk/Backlog.h>
#include <vms_client_sdk/WebSocketOptions.h>
#include <vms_client_sdk/websocket/DialPlaces.h>
#include <vms_client_sdk/websocket/KeptMemory.h>

namespace vms_sdk {

/// What the network threads of one WebSocketTransport share: their limits are those of the whole site. Outlives the
/// threads.
struct SharedLimits
{
    SharedLimits(const WebSocketOptions &limits, std::function<void()> roomAgain)
        : options(limits)
        , places(limits.maxSettingUp, limits.maxWaiting)
        , backlog(std::move(roomAgain))
    {
    }

    const WebSocketOptions options;
    DialPlaces places;
    KeptMemory unfinished; ///< messages whose end has not come
    KeptMemory unsent; ///< what devices have not taken yet
    Backlog backlog;
};

} // namespace vms_sdk
