#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
QT_END_NAMESPACE

namespace orda_client {

/// Saves devices as a table for spreadsheets: asks whether with their passwords, then for a file. Deletes itself.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param name of the file at first, without date and suffix
    ExportDialog(const QList<vms_sdk::DevInfo> &devices, const QString &name, QWidget *parent);

    void accept() override;

private:
    void write(const QString &path, bool isWithPasswords) const;

    QList<vms_sdk::DevInfo> m_devices;
    QString m_name;
    QCheckBox *m_passwords;
};

} // namespace orda_client
