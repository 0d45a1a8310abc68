#pragma once

#include <QString>

namespace orda_base {

/// A bar or an entry of the navigation.
struct NavigationActionInfo
{
    QString title; ///< as the operator reads it
    QString key; ///< by which programs know it; unique in a navigation
};

} // namespace orda_base
