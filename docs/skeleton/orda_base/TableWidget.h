#pragma once

#include <XCOMMON/XTableWidget.h>

namespace orda_base {

/// The list. Shows texts and tool tips as plain text, for names come from devices.
class TableWidget : public XCOMMON::XTableWidget
{
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);
};

} // namespace orda_base
