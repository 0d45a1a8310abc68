#include <orda_base/BaseForm.h>

namespace orda_base {

BaseForm::BaseForm(QWidget *parent)
    : XCOMMON::XWidget(parent)
{
}

BaseForm::~BaseForm() = default;

int BaseForm::formType() const
{
    return 0;
}

} // namespace orda_base
