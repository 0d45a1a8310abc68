#include "BatchCfgPlugin.h"

#include <orda_base/BaseForm.h>
#include <shell/BatchCfgInit.h>

orda_base::ModuleInitialization &BatchCfgPlugin::entry()
{
    return orda_batchCfg::BatchCfgInit::instance();
}

orda_base::BaseForm *BatchCfgPlugin::createForm()
{
    return orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm();
}
