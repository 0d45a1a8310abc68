#include <orda_base/ModuleInitialization.h>

namespace orda_base {

ModuleInitialization::ModuleInitialization(QObject *parent)
    : QObject(parent)
{
}

ModuleInitialization::~ModuleInitialization() = default;

void ModuleInitialization::init() { }

void ModuleInitialization::moduleInit() { }

void ModuleInitialization::recoveryToInitialState() { }

} // namespace orda_base
