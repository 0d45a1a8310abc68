#pragma once

#include <QScreen>
#include <QWidget>

namespace orda_client {

/// The size with which a window opens: the wanted one, or what the screen has room for with a frame around it. How wide
/// the frame is can be known only when the window is on the screen already.
inline QSize openingSize(const QWidget *window, const QSize &wanted)
{
    constexpr QSize frameRoom(16, 48);
    return wanted.boundedTo(window->screen()->availableSize() - frameRoom);
}

} // namespace orda_client
