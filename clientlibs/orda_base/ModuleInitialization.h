#pragma once

#include <orda_base/Export.h>

#include <QObject>

namespace orda_base {

/// Base of a module's entry class. The client calls these functions during the life of the module; a module overrides
/// those that it needs.
class ORDA_BASE_EXPORT ModuleInitialization : public QObject
{
    Q_OBJECT

public:
    explicit ModuleInitialization(QObject *parent);
    ~ModuleInitialization() override;

    /// Called once, before the client's services run.
    virtual void init();
    /// Called once, when the client's services run.
    virtual void moduleInit();
    /// Called at log-out: the module drops what belongs to the operator.
    virtual void recoveryToInitialState();
};

} // namespace orda_base
