#pragma once

#include <XCOMMON/Export.h>

#include <QLineEdit>

namespace XCOMMON {

/// The client's line edit, which the theme tells from other line edits by its class.
class XCOMMON_EXPORT XLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;
};

} // namespace XCOMMON
