#pragma once

#include <QMenu>

namespace XCOMMON {

/// The list's context menu.
class XMenu : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;
};

} // namespace XCOMMON
