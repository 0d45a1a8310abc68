#include "platform/Platform9100ParamsCfgPage.h"

namespace orda_batchCfg {

Platform9100ParamsCfgPage::Platform9100ParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
