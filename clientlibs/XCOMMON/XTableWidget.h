#pragma once

#include <XCOMMON/Export.h>

#include <QTableWidget>

namespace XCOMMON {

/// The client's table. It adds nothing to QTableWidget: it shows which devices a run writes to, so it uses only what Qt
/// itself tests.
class XCOMMON_EXPORT XTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;
};

} // namespace XCOMMON
