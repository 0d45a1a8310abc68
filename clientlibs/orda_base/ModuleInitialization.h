#pragma once

#include <orda_base/Export.h>

#include <QObject>

namespace orda_base {

/// Base of the modules' entry classes. The operations are the client's calls in the life of a module; a module that
/// needs none of them overrides none.
class ORDA_BASE_EXPORT ModuleInitialization : public QObject
{
    Q_OBJECT

public:
    explicit ModuleInitialization(QObject *parent);
    ~ModuleInitialization() override;

    /// Once, before the client's services run.
    virtual void init();
    /// Once, when the client's services run.
    virtual void moduleInit();
    /// At log-out: the module forgets what belongs to the operator.
    virtual void recoveryToInitialState();
};

} // namespace orda_base
