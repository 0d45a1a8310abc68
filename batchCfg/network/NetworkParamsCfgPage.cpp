#include "network/NetworkParamsCfgPage.h"

namespace orda_batchCfg {

NetworkParamsCfgPage::NetworkParamsCfgPage(QWidget *parent)
    : QWidget(parent)
{
}

} // namespace orda_batchCfg
