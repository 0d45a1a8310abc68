#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

namespace orda_journal {
class HistoryWriter;
class JournalTransport;
} // namespace orda_journal
namespace vms_sdk {
struct DevInfo;
class SiteTransport;
} // namespace vms_sdk

namespace orda_engine {

/// Gives the SDK its connections, by way of the history, and keeps them to what the device store holds. One at a time
/// in a process; GUI thread.
class DeviceSession : public QObject
{
    Q_OBJECT

public:
    /// @param history null: what runs do is not recorded
    explicit DeviceSession(std::unique_ptr<orda_journal::HistoryWriter> history, QObject *parent = nullptr);
    /// Closes all connections, ends the run that is under way, and waits until the history is on the disk.
    ~DeviceSession() override;

    /// The store then holds these devices and no others, and the SDK connects to them.
    void setDevices(const QList<vms_sdk::DevInfo> &devices);
    /// Tries the devices again that refused the sign-on.
    void connectAgain();
    /// These are tried again now, those too that refused the sign-on or wait for their next turn.
    void connectDevicesAgain(const QStringList &devIds);

    /// Null once somebody has given the SDK another transport.
    orda_journal::JournalTransport *journal() const;

private:
    void followStore();

    QPointer<orda_journal::JournalTransport> m_journal; // the SDK owns it
    QPointer<vms_sdk::SiteTransport> m_transport; // the journal owns it
};

} // namespace orda_engine
