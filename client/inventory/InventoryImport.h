#pragma once

#include "client/inventory/InventoryCsv.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

class ClientSettings;

/// Makes an inventory file of a table of devices: asks for the table and, when all of it is right, for the file.
class InventoryImport : public QObject
{
    Q_OBJECT

public:
    InventoryImport(ClientSettings *settings, QWidget *window);

    /// Returns at once.
    void start();

signals:
    /// The file is written.
    void signalImported(const QString &inventoryFile);

private:
    void read(const QString &table);
    void askWhereTo(const QString &table, const InventoryCsv::Content &content);
    void write(const QString &inventory, const InventoryCsv::Content &content);

    ClientSettings *m_settings;
    QWidget *m_window;
};

} // namespace orda_client
