// A client that knows its modules only by the plug-ins that it finds: plugin_client PLUGIN shows the plug-in's form.
#include "ClientModule.h"

#include <orda_base/BaseForm.h>
#include <orda_base/ModuleInitialization.h>

#include <QApplication>
#include <QPluginLoader>
#include <QTableWidget>

#include <memory>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    // The plug-in stays loaded when the loader goes, as the module asks for.
    QPluginLoader loader(QCoreApplication::arguments().value(1));
    auto *module = qobject_cast<ClientModule *>(loader.instance());
    if (!module) {
        qWarning("%s", qPrintable(loader.errorString()));
        return 1;
    }
    module->entry().init();
    module->entry().moduleInit();
    const std::unique_ptr<orda_base::BaseForm> form(module->createForm());
    form->show();
    QCoreApplication::processEvents();
    const bool isWhole = form->isVisible() && form->findChild<QTableWidget *>("devsTableWt");
    qInfo("form %d %s", form->formType(), isWhole ? "shown" : "is not whole");
    return isWhole ? 0 : 1;
}
