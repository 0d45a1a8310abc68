#include "fleet/FaultPlan.h"

#include "fleet/FaultPlanReader.h"

#include <vms_client_sdk/ForeignText.h>

namespace device_fleet {

FaultPlan FaultPlan::read(const QString &path, QString *error, QStringList *warnings)
{
    FaultPlanReader reader(path);
    FaultPlan plan = reader.read();
    *error = vms_sdk::escaped(reader.error());
    const QStringList read = reader.warnings();
    for (const QString &warning : read)
        warnings->append(vms_sdk::escaped(warning));
    return plan;
}

void FaultPlan::set(const QString &deviceId, const QString &method, const FaultRule &fault)
{
    m_faults.insert({deviceId, method}, fault);
}

std::optional<FaultRule> FaultPlan::find(const QString &deviceId, const QString &method) const
{
    if (m_faults.isEmpty())
        return std::nullopt;
    using Key = QPair<QString, QString>;
    for (const Key &key : {Key(deviceId, method), Key(deviceId, any()), Key(any(), method), Key(any(), any())}) {
        const auto fault = m_faults.constFind(key);
        if (fault != m_faults.constEnd())
            return *fault;
    }
    return std::nullopt;
}

QStringList FaultPlan::deviceIds() const
{
    QStringList ids;
    for (auto it = m_faults.constBegin(); it != m_faults.constEnd(); ++it)
        if (it.key().first != any())
            ids.append(it.key().first);
    ids.removeDuplicates();
    ids.sort();
    return ids;
}

} // namespace device_fleet
