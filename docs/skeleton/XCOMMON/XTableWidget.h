#pragma once

#include <QTableWidget>

namespace XCOMMON {

/// The base of the list.
class XTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;
};

} // namespace XCOMMON
