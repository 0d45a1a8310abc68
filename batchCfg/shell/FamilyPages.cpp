#include "shell/FamilyPages.h"

#include "audio/AudioParamsCfgPage.h"
#include "families/Families.h"
#include "image/ImageParamsCfgPage.h"
#include "network/NetworkParamsCfgPage.h"
#include "onvif/OnvifParamsCfgPage.h"
#include "osd/OSDParamsCfgPage.h"
#include "platform/Platform9100ParamsCfgPage.h"
#include "platform/PlatformParamsCfgPage.h"
#include "video/VideoParamsCfgPage.h"

#include <QHash>

namespace orda_batchCfg {

namespace {

using CreatePage = QWidget *(*)();

template <typename Page>
QWidget *create()
{
    return new Page(nullptr);
}

/// By the name of the family.
const QHash<QString, CreatePage> &pageClasses()
{
    static const QHash<QString, CreatePage> classes{
        {QStringLiteral("audio"), create<AudioParamsCfgPage>},
        {QStringLiteral("video"), create<VideoParamsCfgPage>},
        {QStringLiteral("image"), create<ImageParamsCfgPage>},
        {QStringLiteral("platform"), create<PlatformParamsCfgPage>},
        {QStringLiteral("platform_9100"), create<Platform9100ParamsCfgPage>},
        {QStringLiteral("network"), create<NetworkParamsCfgPage>},
        {QStringLiteral("osd"), create<OSDParamsCfgPage>},
        {QStringLiteral("onvif"), create<OnvifParamsCfgPage>},
    };
    return classes;
}

} // namespace

QWidget *createFamilyPage(const FamilyEntry &entry)
{
    QWidget *page = pageClasses().value(entry.family.name)();
    page->setObjectName(QLatin1String(entry.pageName));
    if (entry.title)
        page->setAccessibleName(Families::tr(entry.title));
    return page;
}

FamilyPages::FamilyPages(QWidget *parent)
    : QStackedWidget(parent)
{
    for (const FamilyEntry &entry : Families::all())
        if (entry.key)
            addWidget(createFamilyPage(entry));
}

} // namespace orda_batchCfg
