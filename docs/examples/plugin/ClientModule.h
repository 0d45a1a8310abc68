#pragma once

#include <QtPlugin>

namespace orda_base {
class BaseForm;
class ModuleInitialization;
} // namespace orda_base

/// What a client that loads its modules at run time wants of each. Every such client has an interface of its own; this
/// one is the sample's.
class ClientModule
{
public:
    virtual ~ClientModule() = default;

    virtual orda_base::ModuleInitialization &entry() = 0;
    virtual orda_base::BaseForm *createForm() = 0; ///< the caller owns it
};

Q_DECLARE_INTERFACE(ClientModule, "org.example.ClientModule/1.0")
