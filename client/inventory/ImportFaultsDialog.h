#pragma once

#include "client/inventory/InventoryCsv.h"

#include <QDialog>

namespace orda_client {

class ClientSettings;

/// All that is wrong with a table of devices, line by line. Deletes itself when it is closed.
class ImportFaultsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param file that was to be imported
    ImportFaultsDialog(const QString &file, const QVector<InventoryCsv::Fault> &faults, ClientSettings *settings,
                       QWidget *parent);
    ~ImportFaultsDialog() override;

private:
    ClientSettings *m_settings;
};

} // namespace orda_client
