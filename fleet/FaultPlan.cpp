#include "fleet/FaultPlan.h"

#include "fleet/SimulatedDevice.h"
#include "fleet/onvif/OnvifDevice.h"

#include <vms_client_sdk/CheckedJson.h>

#include <QCoreApplication>
#include <QJsonArray>

#include <limits>

namespace device_fleet {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FaultPlan", text);
}

// In the order of the enumeration.
const QStringList &returnNames()
{
    static const QStringList names{QStringLiteral("new-settings"), QStringLiteral("old-settings"),
                                   QStringLiteral("missing-member")};
    return names;
}

QStringList names(vms_sdk::CheckedEntry &entry, const QString &key)
{
    const QJsonValue value = entry.value(key);
    if (value.isUndefined())
        return {FaultPlan::any()};
    QStringList list;
    const QJsonArray values = value.toArray();
    for (const QJsonValue &name : values)
        list.append(name.toString());
    if (list.isEmpty() || list.contains(QString()))
        entry.fail(key, tr("must be a list of names, or of \"*\" for all"));
    return list;
}

void readEntry(vms_sdk::CheckedEntry &entry, FaultPlan *plan)
{
    const QStringList devices = names(entry, QStringLiteral("devices"));
    const QStringList methods = names(entry, QStringLiteral("methods"));
    const QStringList known = SimulatedDevice::methods() + OnvifDevice::operations();
    for (const QString &method : methods) {
        if (method != FaultPlan::any() && !known.contains(method))
            entry.fail(QStringLiteral("methods"),
                       tr(R"("%1" is none of "*", %2)").arg(method, known.join(QStringLiteral(", "))));
    }

    FaultRule rule;
    constexpr int largest = std::numeric_limits<int>::max();
    const QString errorCode = QStringLiteral("errorcode");
    rule.fault = Fault(entry.choice(QStringLiteral("fault"), FaultPlan::faultNames(), -1));
    rule.returnWith = ReturnWith(entry.choice(QStringLiteral("returnWith"), returnNames(), int(rule.returnWith)));
    rule.errorCode = entry.wholeNumber(errorCode, std::numeric_limits<int>::min(), largest, rule.errorCode);
    rule.delay =
        std::chrono::milliseconds(entry.wholeNumber(QStringLiteral("delayMs"), 0, largest, int(rule.delay.count())));
    if (rule.errorCode == 0)
        entry.fail(errorCode, tr("must not be 0, which means success"));
    for (const QString &device : devices)
        for (const QString &method : methods)
            plan->set(device, method, rule);
}

} // namespace

FaultPlan FaultPlan::read(const QString &path, QString *error, QStringList *warnings)
{
    vms_sdk::CheckedFile file(path, QStringLiteral("faults"));
    FaultPlan plan;
    file.read([&plan](vms_sdk::CheckedEntry &entry) { readEntry(entry, &plan); });
    *error = file.error();
    *warnings += file.warnings();
    return error->isEmpty() ? plan : FaultPlan();
}

QStringList FaultPlan::faultNames()
{
    // In the order of the enumeration.
    static const QStringList names{
        QStringLiteral("error-code"),      QStringLiteral("garbage"),        QStringLiteral("no-answer"),
        QStringLiteral("late-answer"),     QStringLiteral("answer-twice"),   QStringLiteral("foreign-id"),
        QStringLiteral("foreign-method"),  QStringLiteral("no-result"),      QStringLiteral("huge-answer"),
        QStringLiteral("drop-connection"), QStringLiteral("drop-and-return")};
    return names;
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
