#pragma once

#include "client/common/ToolWindow.h"

namespace orda_client {

/// The client's manual, in the language of the window where there is one.
class ManualWindow : public ToolWindow
{
    Q_OBJECT

public:
    ManualWindow(ClientSettings *settings, QWidget *parent);
};

} // namespace orda_client
