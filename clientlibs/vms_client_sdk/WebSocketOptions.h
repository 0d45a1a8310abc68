#pragma once

#include <chrono>

namespace vms_sdk {

/// The waiting times of WebSocketTransport. The defaults are what docs/device-protocol.md promises.
struct WebSocketOptions
{
    std::chrono::milliseconds setUpLimit{10'000}; ///< for connecting and signing on together
    std::chrono::milliseconds firstBackOff{500}; ///< the shortest pause before a lost connection is dialled again
    std::chrono::milliseconds lastBackOff{30'000}; ///< the longest
    std::chrono::milliseconds pingInterval{10'000}; ///< two pings without an answer: the connection is lost
    std::chrono::milliseconds closeLimit{2'000}; ///< what a connection may take to close before it is cut
    int maxMessagesPerSecond = 1'000; ///< from one device; a device answers a run with about ten
    int maxBytesPerSecond = 16 << 20; ///< from one device, in characters: what waits for the user interface stays small
    int maxSettingUp = 32; ///< more at once make devices and switches drop handshakes
};

} // namespace vms_sdk
