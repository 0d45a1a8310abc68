#pragma once

#include <QScrollArea>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
QT_END_NAMESPACE

namespace orda_client {

class ClientSettings;

/// What the window shows as long as there are no devices: the ways to some.
class FirstSteps : public QScrollArea
{
    Q_OBJECT

public:
    explicit FirstSteps(const ClientSettings *settings, QWidget *parent = nullptr);

    /// Lists the last inventories anew.
    void listRecent();

signals:
    void signalOpen();
    void signalOpenRecent(const QString &path);
    void signalStartDemo(int devices);
    void signalFind();
    void signalImport();

private:
    QWidget *buildInventory();
    QWidget *buildDemo();
    QWidget *buildImport() const;

    const ClientSettings *m_settings;
    QPushButton *m_open;
    QLabel *m_recentCaption;
    QVBoxLayout *m_recent;
    QSpinBox *m_demoDevices;
};

} // namespace orda_client
