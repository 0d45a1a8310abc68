#pragma once

#include <XCOMMON/XWidget.h>

namespace orda_base {

/// Base of the screens that modules hand to the client.
class BaseForm : public XCOMMON::XWidget
{
    Q_OBJECT

public:
    explicit BaseForm(QWidget *parent = nullptr);
    ~BaseForm() override;

    /// Which of the client's forms this is; the module's is 8. The first virtual operation that is added to
    /// XCOMMON::XWidget. Not pure.
    virtual int formType() const;
};

} // namespace orda_base
