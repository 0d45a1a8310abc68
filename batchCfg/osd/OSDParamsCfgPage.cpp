#include "osd/OSDParamsCfgPage.h"

namespace orda_batchCfg {

OSDParamsCfgPage::OSDParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
