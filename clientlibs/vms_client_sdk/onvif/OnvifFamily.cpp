#include <vms_client_sdk/onvif/OnvifFamily.h>

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QJsonArray>

namespace vms_sdk {

namespace {

QJsonArray changedEntries(const QJsonArray &before, const QJsonArray &after, const QStringList &kept)
{
    QJsonArray changed;
    for (int i = 0; i < after.size(); ++i) {
        const QJsonObject entry = after.at(i).toObject();
        QJsonObject members = changedMembers(before.at(i).toObject(), entry, {});
        if (members.isEmpty())
            continue;
        for (const QString &key : kept)
            members.insert(key, entry.value(key));
        changed.append(members);
    }
    return changed;
}

} // namespace

QJsonObject settingsOf(QJsonObject param)
{
    for (const auto steering : {QLatin1String("channelid"), QLatin1String("bdefault"), QLatin1String("clienttype")})
        param.remove(steering);
    return param;
}

QJsonObject changedMembers(const QJsonObject &before, const QJsonObject &after, const QStringList &kept)
{
    QJsonObject changed;
    for (auto it = after.begin(); it != after.end(); ++it) {
        const QJsonValue former = before.value(it.key());
        if (it.value() == former)
            continue;
        const bool isList = it.value().isArray() && former.isArray();
        changed.insert(it.key(), isList ? changedEntries(former.toArray(), it.value().toArray(), kept) : it.value());
    }
    return changed;
}

const char *namespaceOf(OnvifService service)
{
    switch (service) {
    case OnvifService::Device:
        return onvif::tds;
    case OnvifService::Media:
        return onvif::trt;
    case OnvifService::Media2:
        return onvif::tr2;
    case OnvifService::Imaging:
        return onvif::timg;
    }
    return "";
}

XmlElement takenOut(const XmlElement &answer, const XmlElement &part, const char *name)
{
    XmlElement element = detached({&answer, &part});
    element.name = QLatin1String(name);
    return element;
}

} // namespace vms_sdk
