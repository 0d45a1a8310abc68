#pragma once

#include "client/devices/DeviceLookup.h"

#include <orda_base/DelayedCall.h>

#include <QDialog>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
QT_END_NAMESPACE

namespace orda_client {

class DeviceStates;

/// Takes a list of devices, pasted or loaded, and says which of them can be ticked and what is wrong with the others,
/// before anything is ticked. It ticks nothing itself. Shown by open(); deletes itself when it is closed.
class TickTheseDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; may go before this dialog
    /// @param states must outlive the dialog
    TickTheseDialog(QWidget *form, const DeviceStates *states, QWidget *parent);

signals:
    /// The user wants exactly these ticked, which the list had when they were last looked up.
    void signalTick(const QStringList &devIds);

private:
    QWidget *buildInput();
    QWidget *buildReport();
    QWidget *buildButtons();
    void askForFile();
    void load(const QString &path);
    void lookUp();
    void report(const DeviceLookup::Found &found, const QStringList &notListed);

    QPointer<QWidget> m_form;
    QPlainTextEdit *m_list;
    QCheckBox *m_firstColumnOnly;
    QLabel *m_summary;
    QPlainTextEdit *m_report;
    QString m_reported; // its text
    QPushButton *m_tick;
    QStringList m_devIds; // to be ticked
    orda_base::DelayedCall m_lookUp;
};

} // namespace orda_client
