#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// Puts devices into an inventory file. What goes wrong is told in an alert, and then the file is as it was.
class InventoryAddition : public QObject
{
    Q_OBJECT

public:
    explicit InventoryAddition(QObject *parent);

    /// Returns at once.
    /// @param inventory the file; empty: the user is asked for a new one
    /// @param asking the window that wants it: over another one the dialog would get no keys
    void add(const QList<vms_sdk::DevInfo> &devices, const QString &inventory, QWidget *asking);

signals:
    /// The file is written.
    void signalAdded(const QString &inventory);

private:
    void append(const QList<vms_sdk::DevInfo> &devices, const QString &inventory);
    void write(const QList<vms_sdk::DevInfo> &devices, const QString &inventory);
};

} // namespace orda_client
