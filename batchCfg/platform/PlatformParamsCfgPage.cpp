#include "platform/PlatformParamsCfgPage.h"

namespace orda_batchCfg {

PlatformParamsCfgPage::PlatformParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
