#pragma once

#include "engine/DevicePlan.h"

#include <run/ParamsCfgTask.h>

namespace orda_engine {

/// Reads what one device holds in the exchanges of a run, one after the other, and writes nothing. Texts and codes of
/// its result are those of the family; so are ownership and thread.
class ReadTask : public orda_batchCfg::ParamsCfgTask
{
    Q_OBJECT

public:
    /// @param values of the run: some families read with them
    /// @param flags the exchanges to read: CfgFamily::exchangesOf()
    ReadTask(const orda_batchCfg::CfgFamily &family, const QString &devId, const QJsonObject &values, int flags,
             QObject *parent);

    /// What the device holds: all exchanges when the result is success, otherwise those before the failure.
    const ObjectsByExchange &objects() const { return m_objects; }

protected:
    void handleDevParams(int exchange, const QJsonObject &device) override;

private:
    ObjectsByExchange m_objects;
};

} // namespace orda_engine
