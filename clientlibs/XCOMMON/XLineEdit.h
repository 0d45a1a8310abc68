#pragma once

#include <XCOMMON/Export.h>

#include <QLineEdit>

namespace XCOMMON {

/// The client's line edit. A style sheet can tell it from other line edits by its class.
class XCOMMON_EXPORT XLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;
};

} // namespace XCOMMON
