#pragma once

#include <QPointer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}

namespace orda_client {

class ElidedLabel;

/// A line beside the form that says live what a press on Configure would do, or why it would do nothing, and below it
/// what looks wrong about the values. GUI thread.
///
/// Page and list are read anew soon after input to the form's window, and after whatever else changes what they show;
/// thousands of changes are one reading.
class PressLine : public QWidget
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; the line is empty once it is gone
    explicit PressLine(QWidget *form, QWidget *parent = nullptr);

signals:
    /// The operator wants to see what a press would change.
    void signalPreview();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildWidgets();
    void followForm();
    template <typename Editor, typename Signal>
    void followEditors(Signal signal);
    void refresh();
    void announce();

    QPointer<QWidget> m_form;
    ElidedLabel *m_text;
    ElidedLabel *m_complaint;
    QPushButton *m_preview;
    orda_base::DelayedCall *m_refreshSoon;
    orda_base::DelayedCall *m_announceSoon;
};

} // namespace orda_client
