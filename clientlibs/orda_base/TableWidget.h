#pragma once

#include <XCOMMON/XTableWidget.h>

namespace orda_base {

/// The table of the client's lists: whole rows, smooth scrolling, no focus frame around single cells.
class TableWidget : public XCOMMON::XTableWidget
{
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);
};

} // namespace orda_base
