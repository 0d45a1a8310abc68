#include "run/CfgExchange.h"

namespace orda_batchCfg {

QJsonObject channelZero()
{
    return {{QStringLiteral("channelid"), 0}};
}

QJsonObject mergeKnownKeys(QJsonObject device, const QJsonObject &values)
{
    for (auto it = values.begin(); it != values.end(); ++it)
        if (device.contains(it.key()))
            device.insert(it.key(), it.value());
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
    return [attributeKey](const QJsonObject &values, const QJsonObject &device) {
        QJsonObject param = channelZero();
        param.insert(attributeKey, mergeKnownKeys(device, values));
        return param;
    };
}

} // namespace orda_batchCfg
