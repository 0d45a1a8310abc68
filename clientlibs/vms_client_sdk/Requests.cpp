#include "Requests.h"

#include "ClientSdk.h"

namespace vms_sdk {

void common_req(const QString &requestId, const QString &devId, const QString &text)
{
    ClientSdk::instance().send(requestId, devId, text);
}

void renewal_request_id(const QString &requestId)
{
    ClientSdk::instance().renew(requestId);
}

} // namespace vms_sdk
