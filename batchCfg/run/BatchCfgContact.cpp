#include "run/BatchCfgContact.h"

#include "shell/BatchCfgForm.h"

namespace orda_batchCfg {

BatchCfgContact &BatchCfgContact::instance()
{
    static BatchCfgContact contact;
    return contact;
}

void BatchCfgContact::setForm(BatchCfgForm *form)
{
    m_form = form;
}

BatchCfgForm *BatchCfgContact::form() const
{
    return qobject_cast<BatchCfgForm *>(m_form.data());
}

QStringList BatchCfgContact::checkedDevIds() const
{
    const BatchCfgForm *registered = form();
    return registered ? registered->checkedDevIds() : QStringList();
}

} // namespace orda_batchCfg
