#pragma once

#include <XCOMMON/Export.h>

#include <QWidget>

namespace XCOMMON {

/// Base of the client's widgets. It adds no virtual functions, so that those of BaseForm come first in the table of
/// virtual functions, where modules expect them.
class XCOMMON_EXPORT XWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace XCOMMON
