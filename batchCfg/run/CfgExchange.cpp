#include "run/CfgExchange.h"

namespace orda_batchCfg {

QJsonObject channelZero()
{
    static const QJsonObject zero{{QStringLiteral("channelid"), 0}};
    return zero;
}

QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values)
{
    for (auto it = values.begin(); it != values.end(); ++it) {
        const auto known = device.find(it.key());
        if (known != device.end())
            *known = it.value();
    }
    return device;
}

QJsonObject completeFrom(QJsonObject values, const QJsonObject &device, const QStringList &keys)
{
    for (const QString &key : keys)
        if (!values.contains(key) && device.contains(key))
            values.insert(key, device.value(key));
    return values;
}

CfgExchange::BuildSetParam mergedUnder(const QString &attributeKey)
{
    return [attributeKey](const QJsonObject &values, QJsonObject device) {
        QJsonObject param = channelZero();
        param.insert(attributeKey, mergeKnownKeys(std::move(device), values));
        return param;
    };
}

} // namespace orda_batchCfg
