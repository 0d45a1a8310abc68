#pragma once

#include <XCOMMON/Export.h>

#include <QWidget>

namespace XCOMMON {

/// Base of the client's widgets. Adds nothing to QWidget, so that a form's own operations come first.
class XCOMMON_EXPORT XWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace XCOMMON
