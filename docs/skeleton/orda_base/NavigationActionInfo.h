#pragma once

#include <QString>

namespace orda_base {

/// A bar or an entry of the navigation. The module writes {title, key}: it must take that list in this order.
struct NavigationActionInfo
{
    QString title; ///< as the operator reads it
    QString key; ///< the one of docs/scripting.md
};

} // namespace orda_base
