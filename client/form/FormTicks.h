#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTableWidget;
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// The ticks of the form's device list, which decide what a run writes to. Everywhere @p form is the
/// batch-configuration form, or a window that has it; once it is gone from there, nothing is listed. GUI thread.
struct FormTicks
{
    QStringList devIds; ///< what Configure would write to: ticked and not hidden, in the order of the list
    int hidden = 0; ///< ticked, but hidden by the list's search and so left out
    int listed = 0; ///< all rows, hidden ones included

    static FormTicks of(const QWidget *form);

    struct Ticked
    {
        int count = 0;
        QStringList notListed; ///< ids of the devices that the list does not have now: they are not ticked
        bool isSearchCleared = false; ///< because it hid a ticked row, which a run leaves out
    };
    /// Ticks these devices and no others, hidden rows included. Scrolls to the first.
    static Ticked tickExactly(QWidget *form, const QStringList &devIds);

    /// Ids of the rows of the list, from top to bottom.
    static QStringList listedIn(const QWidget *form);
    static QTableWidget *listOf(const QWidget *form);

    /// What covers the form during a run of a page, in which nothing must be changed; null without one.
    static QWidget *runOverlay(const QWidget *form);
};

} // namespace orda_client
