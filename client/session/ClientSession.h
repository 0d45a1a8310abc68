#pragma once

#include "journal/HistoryOptions.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

namespace device_fleet {
class EmbeddedFleet;
}
namespace orda_journal {
class JournalTransport;
class PageWatch;
} // namespace orda_journal
namespace orda_engine {
class DeviceSession;
}

namespace orda_client {

/// Brings devices into the client: fills the store from an inventory or from an embedded fleet, and keeps the SDK
/// connected to what the store holds. What runs do to the devices goes into the history.
class ClientSession : public QObject
{
    Q_OBJECT

public:
    explicit ClientSession(const orda_journal::HistoryOptions &history, QObject *parent = nullptr);
    /// Closes all connections, then ends the embedded fleet.
    ~ClientSession() override;

    /// Where the devices are from; nothing of it is set at first.
    struct Source
    {
        QString inventoryFile; ///< absolute path
        int demoDevices = 0; ///< of the embedded fleet, ONVIF cameras included

        bool isNone() const { return inventoryFile.isEmpty() && demoDevices == 0; }
    };
    const Source &source() const { return m_source; }

    /// The store then holds these devices and no others. Changes nothing after an error.
    /// @param onvifDevices cameras beside the devices
    /// @return an error for the user, empty when the devices are there
    QString startDemo(int devices, const QString &faultsFile, int onvifDevices = 0);
    /// The same with the devices of a file. An embedded fleet ends.
    QString openInventory(const QString &file);

    /// Lets the runs of the form's pages into the history.
    void watchPages(const QObject *form);

    /// Tries the devices again that refused the sign-on.
    void connectAgain();
    /// Tries these again now, those too that refused the sign-on or wait for their next turn.
    void connectDevicesAgain(const QStringList &devIds);

    /// What the jobs of the engine take, and what tells about runs. Null once somebody has given the SDK another
    /// transport.
    orda_journal::JournalTransport *journal() const;
    /// Where the history is, for those who read it.
    const orda_journal::HistoryOptions &historyOptions() const { return m_historyOptions; }

signals:
    /// Something in an input that the user should know of but that stops nothing.
    void signalWarning(const QString &text);
    /// Something that the user must know of: a run was declined, or cannot be recorded.
    void signalAlert(const QString &text);
    /// The store has the devices of another source(), or of the same one read again.
    void signalSourceChanged();

private:
    void setSource(const Source &source);
    void tellAfterRun(const QString &text);
    void tellAlerts();

    const orda_journal::HistoryOptions m_historyOptions;
    Source m_source;
    std::unique_ptr<device_fleet::EmbeddedFleet> m_fleet;
    std::unique_ptr<orda_engine::DeviceSession> m_devices; // before the fleet ends
    QPointer<orda_journal::JournalTransport> m_journal; // the SDK owns it
    orda_journal::PageWatch *m_pageWatch;
    QStringList m_alerts; // not told yet
};

} // namespace orda_client
