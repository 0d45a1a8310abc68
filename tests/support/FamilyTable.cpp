#include "support/FamilyTable.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

FamilyRow row(const char *name, const char *navigationKey, const char *pageName, const char *title, const char *timeout,
              const char *methods, std::initializer_list<const char *> things)
{
    FamilyRow row{latin1(name),
                  latin1(navigationKey),
                  latin1(pageName),
                  latin1(title) + QStringLiteral(" Parameters Configuration Result"),
                  QStringLiteral("vms_%1_params_batch_cfg_record.txt").arg(latin1(name)),
                  QStringLiteral("set %1 parameters time out").arg(latin1(timeout)),
                  latin1(methods).split(QLatin1Char(' ')),
                  {}};
    for (const char *thing : things)
        for (const char *step : {"get", "set"})
            row.failures.append(QStringLiteral("Failed to %1 %2 parameters").arg(latin1(step), latin1(thing))
                                + QStringLiteral("(%1)"));
    return row;
}

} // namespace

const QList<FamilyRow> &familyTable()
{
    static const QList<FamilyRow> rows{
        row("audio", "audio_param", "audioParametersPage", "Audio", "audio",
            "ai_get_param ai_set_param ao_get_param ao_set_param", {"audio in", "audio out"}),
        row("video", "video_param", "videoParametersPage", "Video", "stream", "stream_get_params stream_set_params",
            {"stream"}),
        row("image", "image_param", "imageParametersPage", "Image", "image",
            "image_get_adjust_param image_set_adjust_param image_get_dncut_param image_set_dncut_param "
            "image_get_expertsetting_param image_set_expertsetting_param",
            {"image adjust", "image day-night", "image expert"}),
        row("osd", "osd_param", "osdParamsCfgPage", "OSD", "osd", "chnosd_get_param chnosd_set_param", {"osd"}),
        row("network", "network_param", "networkParamsCfgPage", "Network", "network",
            "netservice_onvif_get_discoveryinfo netservice_onvif_set_discoveryinfo ifconfig_get_inet ifconfig_eth_set",
            {"onvif discovery", "ip"}),
        row("platform", "cloud_service_param", "platformParametersPage", "Platform", "platform",
            "ifconfig_qbcloud_get_param ifconfig_qbcloud_set_param", {"platform"}),
        row("platform_9100", "9100_param", "platform9100ParametersPage", "Platform 9100", "platform 9100",
            "alarmservice_get_cfg alarmservice_set_cfg", {"platform 9100"}),
        row("onvif", "", "orda_batchCfg__OnvifParamsCfgPage", "Onvif", "onvif discovery",
            "netservice_onvif_get_discoveryinfo netservice_onvif_set_discoveryinfo", {"onvif discovery"}),
    };
    return rows;
}

QList<FamilyRow> stormedFamilies()
{
    const bool all = qEnvironmentVariableIsSet("ORDA_STORM_SEEDS");
    const QStringList few{QStringLiteral("audio"), QStringLiteral("platform"), QStringLiteral("image")};
    QList<FamilyRow> families;
    for (const FamilyRow &family : familyTable())
        if (!family.navigationKey.isEmpty() && (all || few.contains(family.name)))
            families.append(family);
    return families;
}

const FamilyRow &familyRow(const QString &name)
{
    const auto &rows = familyTable();
    return *std::find_if(rows.begin(), rows.end(), [&name](const FamilyRow &row) { return row.name == name; });
}

QString recordPath(const FamilyRow &family)
{
    return QDir::temp().filePath(family.recordFile);
}

QMap<QString, QString> recordedMessages(const FamilyRow &family)
{
    QMap<QString, QString> messages;
    QFile file(recordPath(family));
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    const QStringList entries = QString::fromUtf8(file.readAll()).split(QStringLiteral("\n\n"), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QStringList fields = entry.split(QStringLiteral("    "), Qt::SkipEmptyParts);
        // The address is missing where a device has none; the message is the first field that reads like one.
        const auto message = std::find_if(fields.begin() + 2, fields.end(), [](const QString &field) {
            return !field.trimmed().isEmpty() && !field.trimmed().front().isDigit();
        });
        messages.insert(fields.value(1).trimmed(), message == fields.end() ? entry : message->trimmed());
    }
    return messages;
}
