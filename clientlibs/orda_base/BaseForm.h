#pragma once

#include <XCOMMON/XWidget.h>
#include <orda_base/Export.h>

namespace orda_base {

/// Base of the screens that modules hand to the client.
class ORDA_BASE_EXPORT BaseForm : public XCOMMON::XWidget
{
    Q_OBJECT

public:
    explicit BaseForm(QWidget *parent = nullptr);
    ~BaseForm() override;

    /// Which of the client's forms this is; 0: none of the known ones. The first virtual operation that a form adds.
    virtual int formType() const;
};

} // namespace orda_base
