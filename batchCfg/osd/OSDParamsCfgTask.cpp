#include "osd/OSDParamsCfgTask.h"

namespace orda_batchCfg {

const CfgFamily &OSDParamsCfgTask::family()
{
    static const QVector<CfgChoice> positions{{"left_top", QT_TR_NOOP("Top Left")},
                                              {"left_bottom", QT_TR_NOOP("Bottom Left")},
                                              {"right_top", QT_TR_NOOP("Top Right")},
                                              {"right_bottom", QT_TR_NOOP("Bottom Right")},
                                              {"hide", QT_TR_NOOP("Hide")}};
    static const CfgFamily osd{QStringLiteral("osd"),
                               &staticMetaObject,
                               QT_TR_NOOP("OSD Parameters Configuration Result"),
                               QT_TR_NOOP("set osd parameters time out"),
                               {
                                   CfgExchange("chnosd_get_param", "chnosd_set_param", mergedUnder("attr"))
                                       .reading(channelZero())
                                       .failing(QT_TR_NOOP("Failed to get osd parameters(%1)"),
                                                QT_TR_NOOP("Failed to set osd parameters(%1)")),
                               },
                               {
                                   CfgKey::switchOf("bShowOSD"),
                                   // Devices read the date as it is shown, so it is not translated.
                                   CfgKey::choice("timeFormat", {{"YYYY-MM-DD hh:mm:ss", "YYYY-MM-DD"},
                                                                 {"MM/DD/YYYY hh:mm:ss", "MM/DD/YYYY"},
                                                                 {"DD/MM/YYYY hh:mm:ss", "DD/MM/YYYY"}}),
                                   CfgKey::choice("timePos", positions),
                                   CfgKey::text("channelName", 32),
                                   CfgKey::choice("position", positions),
                                   CfgKey::switchOf("bLargeOSD"),
                               },
                               newTask<OSDParamsCfgTask>};
    return osd;
}

OSDParamsCfgTask::OSDParamsCfgTask(const QString &devId, const QJsonObject &values, QObject *parent)
    : ParamsCfgTask(family(), devId, values, 0, parent)
{
}

} // namespace orda_batchCfg
