#pragma once

#include <XCOMMON/XTableWidget.h>
#include <orda_base/Export.h>

namespace orda_base {

/// The table of the client's lists: whole rows, smooth scrolling, no focus frame around single cells; one stop of the
/// Tab key. Its check marks can be read and toggled by assistive technology. Texts and tool tips are shown as plain
/// text, for they come from devices.
class ORDA_BASE_EXPORT TableWidget : public XCOMMON::XTableWidget
{
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace orda_base
