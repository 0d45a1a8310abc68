#pragma once

#include "client/record/RunRecord.h"

#include <QCoreApplication>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// The devices that failed in a run, brought back to the form for another try.
class FailedDevices
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::FailedDevices)

public:
    struct Ticked
    {
        int count = 0;
        QStringList notTicked; ///< for the user: the other failed devices, each with its name and why
        bool isSearchCleared = false;
    };

    /// Ticks the failed devices in the form's list and no others. The record names a device by its serial number only:
    /// where that may be another device, it is not ticked. The list's search is cleared when it hides a ticked row,
    /// because a run leaves hidden rows out. Scrolls to the first ticked row.
    /// @param form the batch-configuration form, or a window that has it
    static Ticked tickAgain(QWidget *form, const QVector<RunEntry> &entries);
};

} // namespace orda_client
