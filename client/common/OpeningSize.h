#pragma once

#include <QScreen>
#include <QWidget>

namespace orda_client {

/// The size with which a window opens: the wanted one, or what fits on the screen with a frame around it. The frame's
/// width is estimated, because it is not known before the window is shown.
inline QSize openingSize(const QWidget *window, const QSize &wanted)
{
    constexpr QSize frameRoom(16, 48);
    return wanted.boundedTo(window->screen()->availableSize() - frameRoom);
}

} // namespace orda_client
