#include "video/VideoParamsCfgPage.h"

namespace orda_batchCfg {

VideoParamsCfgPage::VideoParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
