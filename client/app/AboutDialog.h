#pragma once

#include <QDialog>

namespace orda_client {

/// Version, licence, and what the client is made with. Deletes itself when it is closed.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent);
};

} // namespace orda_client
