#include "run/CfgExchange.h"

#include <utility>

namespace orda_batchCfg {

namespace {

const QJsonObject &channelZeroParam()
{
    static const QJsonObject param{{QStringLiteral("channelid"), 0}};
    return param;
}

} // namespace

CfgExchange::CfgExchange(const char *get, const char *set, SetParam buildSetParam)
    : getMethod(QLatin1String(get))
    , setMethod(QLatin1String(set))
    , setParam(std::move(buildSetParam))
{
}

CfgExchange CfgExchange::reading(GetParam param) &&
{
    getParam = std::move(param);
    return std::move(*this);
}

CfgExchange CfgExchange::failing(const char *getText, const char *setText) &&
{
    getFailure = getText;
    setFailure = setText;
    return std::move(*this);
}

CfgExchange CfgExchange::onlyWith(int bit) &&
{
    flag = bit;
    return std::move(*this);
}

CfgExchange CfgExchange::foundIn(const char *member) &&
{
    resultMember = QLatin1String(member);
    return std::move(*this);
}

CfgExchange CfgExchange::checkedWhenBack(std::chrono::milliseconds limit) &&
{
    checkWhenBack = true;
    checkLimit = limit;
    return std::move(*this);
}

CfgExchange::GetParam channelZero()
{
    return [](const QJsonObject &) { return channelZeroParam(); };
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

CfgExchange::SetParam mergedUnder(const char *attribute)
{
    return [attribute = QString(QLatin1String(attribute))](const QJsonObject &values, QJsonObject device) {
        QJsonObject param = channelZeroParam();
        param.insert(attribute, mergeKnownKeys(std::move(device), values));
        return param;
    };
}

} // namespace orda_batchCfg
