#pragma once

#include "engine/DeviceUndo.h"

#include <run/ParamsCfgTask.h>

namespace orda_engine {

/// Takes back what a run wrote to one device, exchange by exchange: reads it, and writes back what still is as it was
/// written. What goes back is decided by this very read, so that nothing is lost that somebody has set since a preview.
/// An exchange where nothing goes back is not written to. Texts and codes of its result are those of the family; so are
/// ownership and thread.
class WriteBackTask : public orda_batchCfg::ParamsCfgTask
{
    Q_OBJECT

public:
    /// @param values of the run that is taken back: the device is read as that run read it
    /// @param before what the device held before its writes
    /// @param sent "param" of the writes, at least one
    /// @param force as for undoOf()
    WriteBackTask(const orda_batchCfg::CfgFamily &family, const QString &devId, const QJsonObject &values,
                  const ObjectsByExchange &before, const ObjectsByExchange &sent, bool force, QObject *parent);

    /// What was decided, for each exchange that has been read. All but the last of these are done; the result tells
    /// whether that one is.
    const DeviceUndo &decided() const { return m_decided; }

protected:
    void handleDevParams(int exchange, const QJsonObject &device) override;

private:
    const orda_batchCfg::CfgFamily &m_family;
    const QJsonObject m_runValues;
    ObjectsByExchange m_before, m_sent;
    bool m_force;
    DeviceUndo m_decided;
};

} // namespace orda_engine
