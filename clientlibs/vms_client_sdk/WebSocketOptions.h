#pragma once

#include <QThread>

#include <chrono>

namespace vms_sdk {

/// The limits of WebSocketTransport. The defaults are what docs/device-protocol.md promises.
struct WebSocketOptions
{
    std::chrono::milliseconds connectLimit{5'000}; ///< for TCP and, where the device has it, TLS
    std::chrono::milliseconds setUpLimit{10'000}; ///< for the handshake and the sign-on after that
    std::chrono::milliseconds placeLimit{
        1'000}; ///< after this silence of a device, others are dialled while it is waited for
    std::chrono::milliseconds firstBackOff{500}; ///< the shortest pause before a lost connection is dialled again
    std::chrono::milliseconds lastBackOff{30'000}; ///< the longest
    std::chrono::milliseconds pingInterval{10'000}; ///< two pings without an answer: the connection is lost
    std::chrono::milliseconds closeLimit{2'000}; ///< what a connection may take to close before it is cut
    int maxSettingUp = 32; ///< with more at a time, devices and switches drop handshakes
    int maxWaiting = 512; ///< connections that are up and wait for the device; each is an open file
    int devicesPerThread = 1'000; ///< the system is handed all sockets of a thread at each turn of its event loop
    /// Further devices are shared by these. More threads than processors take them from the window's thread; more than
    /// eight gain nothing with 10,000 devices.
    int maxThreads = qBound(1, QThread::idealThreadCount(), 8);
};

} // namespace vms_sdk
