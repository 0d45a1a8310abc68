#pragma once

#include <QDialog>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace orda_client {

class RunProgress;

/// Asks whether the window is to be closed in mid-run, says how many devices have not answered yet, and goes away by
/// itself when the run ends. Accepted: close. Deletes itself.
class CloseQuestion : public QDialog
{
    Q_OBJECT

public:
    /// @param progress of the run, which is under way
    CloseQuestion(const RunProgress *progress, QWidget *parent);

private:
    void follow();

    QPointer<const RunProgress> m_progress;
    QLabel *m_count;
};

} // namespace orda_client
