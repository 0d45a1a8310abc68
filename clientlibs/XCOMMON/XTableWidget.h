#pragma once

#include <XCOMMON/Export.h>

#include <QTableWidget>

namespace XCOMMON {

/// The client's table. What it does is what QTableWidget does: a list that decides which devices are written to has no
/// workings of its own.
class XCOMMON_EXPORT XTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;
};

} // namespace XCOMMON
