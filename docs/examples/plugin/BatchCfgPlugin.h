#pragma once

#include "ClientModule.h"

#include <QObject>

/// The module as a Qt plug-in: wraps the library, which is linked in the ordinary way.
class BatchCfgPlugin : public QObject, public ClientModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.ClientModule/1.0")
    Q_INTERFACES(ClientModule)

public:
    orda_base::ModuleInitialization &entry() override;
    orda_base::BaseForm *createForm() override;
};
