#pragma once

#include <XCOMMON/Export.h>

#include <QMenu>

namespace XCOMMON {

/// The client's context menu. A style sheet can tell it from other menus by its class.
class XCOMMON_EXPORT XMenu : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;
};

} // namespace XCOMMON
