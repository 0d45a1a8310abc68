#pragma once

#include "batch/BatchOptions.h"

#include <vms_client_sdk/onvif/OnvifDiscovery.h>

#include <QObject>

namespace orda_batch {

class OutputThread;

/// Searches the network for cameras and writes a line for each as it answers. Knows no inventory. Used once.
class DiscoverCommand : public QObject
{
    Q_OBJECT

public:
    /// @param output must outlive the command
    DiscoverCommand(const BatchOptions &options, OutputThread *output);

    /// Returns at once; the signal comes from the event loop.
    void start();
    /// Ends the search; what was found is written already.
    void stop(const QString &why);

signals:
    /// Last, and once; everything has been given to the output.
    void signalFinished(int exitCode);

private:
    void begin();
    void writeHead();
    void write(const vms_sdk::FoundCamera &camera);
    void finish();

    const BatchOptions m_options;
    OutputThread *m_output;
    vms_sdk::OnvifDiscovery m_discovery;
    QSet<QString> m_ids; // of inventory entries, as they were proposed
    int m_found = 0;
    bool m_isStopped = false;
};

} // namespace orda_batch
