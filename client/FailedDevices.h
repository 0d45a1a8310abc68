#pragma once

#include "client/RunRecord.h"

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
        QStringList left; ///< for the user: the failed devices that are not ticked, each with its name and why
        bool isSearchCleared = false;
    };

    /// @param form the batch-configuration form, or a window that has it
    /// @return what covers it during a run, in which nothing must be changed; null without a run
    static QWidget *runOverlay(const QWidget *form);
    static bool isRunUnderWay(const QWidget *form) { return runOverlay(form); }

    /// Ticks the failed devices in the form's list and no others. The record knows a device by its serial number only;
    /// one that leaves a doubt is not ticked. The list's search is cleared when it hides a ticked row: a run leaves
    /// such rows out. The first ticked row is brought into sight.
    static Ticked tickAgain(QWidget *form, const QVector<RunEntry> &entries);
};

} // namespace orda_client
