#include <vms_client_sdk/DevInfo.h>

#include <tuple>

namespace vms_sdk {

bool isOnlineStatus(DevStatus status)
{
    return status == DevOnline || status == DevDefaultPassword || status == DevLocked;
}

namespace {

auto fields(const DevInfo &d)
{
    return std::tie(d.id, d.name, d.serialNumber, d.ip, d.ipNumber, d.port, d.userName, d.password, d.accessCode,
                    d.kindCode, d.group, d.protocol, d.path, d.tls, d.url, d.fingerprint);
}

} // namespace

bool operator==(const DevInfo &a, const DevInfo &b)
{
    return fields(a) == fields(b);
}

} // namespace vms_sdk
