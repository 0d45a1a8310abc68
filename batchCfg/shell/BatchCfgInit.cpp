#include "shell/BatchCfgInit.h"

#include "shell/BatchCfgForm.h"

namespace orda_batchCfg {

BatchCfgInit::BatchCfgInit(QObject *parent)
    : orda_base::ModuleInitialization(parent)
{
}

BatchCfgInit::~BatchCfgInit() = default;

BatchCfgInit &BatchCfgInit::instance()
{
    static BatchCfgInit entry(nullptr);
    return entry;
}

orda_base::BaseForm *BatchCfgInit::createBatchCfgForm()
{
    return new BatchCfgForm;
}

} // namespace orda_batchCfg
