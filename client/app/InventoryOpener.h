#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

class ClientSession;
class ClientSettings;

/// Brings devices into the client as its user asks: from a file, from one of the last inventories, simulated ones. What
/// goes wrong is told in an alert. Remembers which inventories were opened.
class InventoryOpener : public QObject
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it
    InventoryOpener(QWidget *form, ClientSession *session, ClientSettings *settings, QWidget *window);

    /// Asks for a file. Returns at once.
    void ask();
    void open(const QString &file);
    /// One of the last inventories: where it has gone, it is taken off their list.
    void openRecent(const QString &file);
    void startDemo(int devices);
    void clearRecent();

    /// Tells the user, when the devices must not be changed now: something is going on over them.
    /// @return whether that is so
    bool isDeclined() const;

signals:
    /// The list of the last inventories is another.
    void signalRecentChanged();

private:
    static void tell(const QString &error);

    QWidget *m_form;
    ClientSession *m_session;
    ClientSettings *m_settings;
    QWidget *m_window;
};

} // namespace orda_client
