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

    /// The client's number for this kind of form; 0 for a kind that the client does not know. This stays the first
    /// virtual function, because modules are built against its place.
    virtual int formType() const;
};

} // namespace orda_base
