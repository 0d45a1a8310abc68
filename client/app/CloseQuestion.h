#pragma once

#include <QDialog>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace orda_client {

/// Asks whether the window is to be closed in mid-run, says how many devices have not answered yet, and goes away by
/// itself when the run ends. Accepted: close. Deletes itself.
class CloseQuestion : public QDialog
{
    Q_OBJECT

public:
    /// @param overlay what covers the form during the run
    CloseQuestion(QWidget *overlay, QWidget *parent);

private:
    void follow();

    QPointer<QWidget> m_overlay;
    QLabel *m_count;
};

} // namespace orda_client
