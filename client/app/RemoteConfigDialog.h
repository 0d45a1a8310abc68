#pragma once

#include <QDialog>

namespace orda_client {

/// What the client knows of a device, for whoever asks for its remote configuration. Deletes itself.
class RemoteConfigDialog : public QDialog
{
    Q_OBJECT

public:
    RemoteConfigDialog(const QString &devId, QWidget *parent);
};

} // namespace orda_client
