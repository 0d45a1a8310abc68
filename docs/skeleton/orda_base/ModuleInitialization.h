#pragma once

#include <QObject>

namespace orda_base {

/// Base of the modules' entry classes. No operation is pure. The module overrides none of these three, so when and
/// whether they are called is the client's affair.
class ModuleInitialization : public QObject
{
    Q_OBJECT

public:
    explicit ModuleInitialization(QObject *parent);
    ~ModuleInitialization() override;

    virtual void init();
    virtual void moduleInit();
    virtual void recoveryToInitialState();
};

} // namespace orda_base
