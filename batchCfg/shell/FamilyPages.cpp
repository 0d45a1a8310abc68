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

#include <orda_base/NavigationActionInfo.h>
#include <orda_base/NavigationWidget.h>

#include <QHash>

namespace orda_batchCfg {

namespace {

using CreatePage = QWidget *(*)();

template <typename Page>
QWidget *newPage()
{
    return new Page(nullptr);
}

/// By the name of the family.
const QHash<QString, CreatePage> &pageClasses()
{
    static const QHash<QString, CreatePage> classes{
        {QStringLiteral("audio"), newPage<AudioParamsCfgPage>},
        {QStringLiteral("video"), newPage<VideoParamsCfgPage>},
        {QStringLiteral("image"), newPage<ImageParamsCfgPage>},
        {QStringLiteral("platform"), newPage<PlatformParamsCfgPage>},
        {QStringLiteral("platform_9100"), newPage<Platform9100ParamsCfgPage>},
        {QStringLiteral("network"), newPage<NetworkParamsCfgPage>},
        {QStringLiteral("osd"), newPage<OSDParamsCfgPage>},
        {QStringLiteral("onvif"), newPage<OnvifParamsCfgPage>},
    };
    return classes;
}

} // namespace

QWidget *createFamilyPage(const FamilyEntry &entry)
{
    const CreatePage create = pageClasses().value(entry.family.name);
    if (!create)
        qFatal("family %s has no page", qPrintable(entry.family.name));
    QWidget *page = create();
    page->setObjectName(QLatin1String(entry.pageName));
    if (entry.title)
        page->setAccessibleName(Families::tr(entry.title));
    return page;
}

void addFamilyBars(orda_base::NavigationWidget *navigation, QWidget *owner)
{
    using orda_base::NavigationActionInfo;
    const auto addBar = [navigation, owner](const NavigationActionInfo &bar,
                                            const QList<NavigationActionInfo> &entries) {
        const QString icon = QStringLiteral(":/batchCfg_images/images/%1_%2.png");
        navigation->addNavigationBar(icon.arg(bar.key, QStringLiteral("n")), icon.arg(bar.key, QStringLiteral("h")),
                                     bar, entries, owner);
    };
    const auto info = [](const char *title, const char *key) {
        return NavigationActionInfo{Families::tr(title), QLatin1String(key)};
    };
    const NavigationBar *bar = nullptr; // whose entries are being collected
    QList<NavigationActionInfo> entries;
    const auto endBar = [&] {
        if (bar)
            addBar(info(bar->title, bar->key), entries);
        bar = nullptr;
        entries.clear();
    };
    for (const FamilyEntry &entry : Families::all()) {
        if (!entry.key)
            continue;
        if (entry.bar != bar)
            endBar();
        bar = entry.bar;
        if (bar)
            entries.append(info(entry.title, entry.key));
        else
            addBar(info(entry.title, entry.key), {});
    }
    endBar();
}

FamilyPages::FamilyPages(QWidget *parent)
    : QStackedWidget(parent)
{
    for (const FamilyEntry &entry : Families::all())
        if (entry.key)
            addWidget(createFamilyPage(entry));
}

} // namespace orda_batchCfg
