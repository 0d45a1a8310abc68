#include "client/Families.h"

#include <QStackedWidget>

#include <algorithm>

namespace orda_client {

namespace {

Family family(const QString &name, const QString &navigationKey, const QString &pageName)
{
    return {name, navigationKey, pageName, QStringLiteral("vms_%1_params_batch_cfg_record.txt").arg(name)};
}

} // namespace

const QList<Family> &families()
{
    static const QList<Family> all{
        family(QStringLiteral("audio"), QStringLiteral("audio_param"), QStringLiteral("audioParametersPage")),
        family(QStringLiteral("video"), QStringLiteral("video_param"), QStringLiteral("videoParametersPage")),
        family(QStringLiteral("image"), QStringLiteral("image_param"), QStringLiteral("imageParametersPage")),
        family(QStringLiteral("platform"), QStringLiteral("cloud_service_param"),
               QStringLiteral("platformParametersPage")),
        family(QStringLiteral("platform_9100"), QStringLiteral("9100_param"),
               QStringLiteral("platform9100ParametersPage")),
        family(QStringLiteral("network"), QStringLiteral("network_param"), QStringLiteral("networkParamsCfgPage")),
        family(QStringLiteral("osd"), QStringLiteral("osd_param"), QStringLiteral("osdParamsCfgPage")),
    };
    return all;
}

const Family *findFamily(const QString &name)
{
    const auto found = std::find_if(families().begin(), families().end(),
                                    [&name](const Family &candidate) { return candidate.name == name; });
    return found == families().end() ? nullptr : &*found;
}

QStringList familyNames()
{
    QStringList names;
    for (const Family &candidate : families())
        names.append(candidate.name);
    return names;
}

const Family *shownFamily(const QWidget *form)
{
    const QString page =
        form->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget()->objectName();
    const auto found = std::find_if(families().begin(), families().end(),
                                    [&page](const Family &candidate) { return candidate.pageName == page; });
    return found == families().end() ? nullptr : &*found;
}

} // namespace orda_client
