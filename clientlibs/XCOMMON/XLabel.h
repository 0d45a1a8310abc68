#pragma once

#include <XCOMMON/Export.h>

#include <QLabel>

namespace XCOMMON {

/// The client's label. A style sheet can tell it from other labels by its class.
class XCOMMON_EXPORT XLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

} // namespace XCOMMON
