#pragma once

#include <orda_base/Export.h>
#include <XCOMMON/XTableWidget.h>

namespace orda_base {

/// The table of the client's lists. It selects whole rows, scrolls smoothly, and is one stop of the Tab key. Assistive
/// technology can read and toggle its check marks. Texts and tool tips are shown as plain text, because they come from
/// devices.
class ORDA_BASE_EXPORT TableWidget : public XCOMMON::XTableWidget
{
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace orda_base
