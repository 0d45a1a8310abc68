#pragma once

#include <orda_base/ModuleInitialization.h>

#include <QtGlobal>

#ifdef ORDA_BATCHCFG_BUILD
#define ORDA_BATCHCFG_EXPORT Q_DECL_EXPORT
#else
#define ORDA_BATCHCFG_EXPORT Q_DECL_IMPORT
#endif

namespace orda_base {
class BaseForm;
}

namespace orda_batchCfg {

/// The module's entry, the one class that the library exports. User-interface thread only.
class ORDA_BATCHCFG_EXPORT BatchCfgInit : public orda_base::ModuleInitialization
{
    Q_OBJECT

public:
    static BatchCfgInit &instance();

    /// A new form without a parent at every call; the caller owns it. The pages work with the form made last.
    orda_base::BaseForm *createBatchCfgForm();

private:
    explicit BatchCfgInit(QObject *parent);
    ~BatchCfgInit() override;
};

} // namespace orda_batchCfg
