#pragma once

#include <QString>

namespace orda_base {

/// A bar or an entry of the navigation.
struct NavigationActionInfo
{
    QString title; ///< shown to the operator
    QString key; ///< for programs; unique in a navigation
};

} // namespace orda_base
