#pragma once

#include <QWidget>

namespace XCOMMON {

/// The base of BaseForm. Adds no virtual operation to QWidget.
class XWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace XCOMMON
