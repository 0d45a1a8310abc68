#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QHash>
#include <QStatusBar>

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace orda_base {
class DelayedCall;
}

namespace orda_client {

/// Says what happened last, and how many of the devices are online. Follows the device store.
class ClientStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    /// @param devices triggered by a click on the count, while it is enabled
    /// @param runs on a button that is hidden until the first run is over
    ClientStatusBar(QAction *devices, QAction *runs, QWidget *parent = nullptr);

    /// Shows a line, with the time, until the next one.
    void tell(const QString &text);
    void offerRuns();

private:
    void buildCount(QAction *devices);
    void followDevices();
    void refresh();

    QLabel *m_last;
    QToolButton *m_runsBt;
    QToolButton *m_onlineCount;
    orda_base::DelayedCall *m_refresh;
    QString m_lastChanged; // id of the device whose change of state is to be told
    QHash<QString, vms_sdk::DevStatus> m_known; // by device id; attempts to connect are left out
};

} // namespace orda_client
