#pragma once

#include <orda_base/Export.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QApplication;
class QPalette;
QT_END_NAMESPACE

namespace orda_base {

/// The style of all windows. A module chooses some of it by dynamic properties, which count whatever their value is:
/// "common_bt_style1" and "common_bt_style2" on a push button for the main and the second action; "page_caption" and
/// "dialog_caption" on a label for headings; "page_card" on a widget for a framed area.
class ORDA_BASE_EXPORT Theme
{
public:
    enum Scheme
    {
        FollowPalette, ///< dark when the palette of the application is dark
        Light,
        Dark
    };

    /// Called once, before the first window is made.
    static void apply(QApplication &app, Scheme scheme = FollowPalette);

    /// Whether the texts of the palette are lighter than its windows.
    static bool isDark(const QPalette &palette);

    /// The path of an image of the theme, such as "search", in the colours of the scheme.
    static QString image(const QString &name);
};

} // namespace orda_base
