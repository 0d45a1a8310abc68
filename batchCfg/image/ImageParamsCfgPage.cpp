#include "image/ImageParamsCfgPage.h"

namespace orda_batchCfg {

ImageParamsCfgPage::ImageParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
