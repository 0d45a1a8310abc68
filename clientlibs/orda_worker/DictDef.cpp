#include <orda_worker/DictDef.h>

namespace orda_worker {

DictDef &DictDef::instance()
{
    static DictDef dictionary;
    return dictionary;
}

QString DictDef::alertTitle() const
{
    return tr("Notice");
}

} // namespace orda_worker
