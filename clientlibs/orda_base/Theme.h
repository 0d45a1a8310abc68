#pragma once

#include <orda_base/Export.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QApplication;
class QPalette;
QT_END_NAMESPACE

namespace orda_base {

/// The one look of all windows. What a module asks for by dynamic properties (their presence counts, not their value):
/// "common_bt_style1" and "common_bt_style2" on a push button: the main action, and the one beside it;
/// "page_caption" on a label: a heading; "page_card" on a widget: a framed area.
class ORDA_BASE_EXPORT Theme
{
public:
    enum Scheme
    {
        FollowPalette, ///< dark where the application's palette is: light text on dark windows
        Light,
        Dark
    };

    /// Called once, before the first window is made.
    static void apply(QApplication &app, Scheme scheme = FollowPalette);

    /// Whether its texts are lighter than its windows.
    static bool isDark(const QPalette &palette);

    /// Path of one of the theme's own images, such as "search", as the scheme has it.
    static QString image(const QString &name);
};

} // namespace orda_base
