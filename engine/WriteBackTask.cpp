#include "engine/WriteBackTask.h"

namespace orda_engine {

using orda_batchCfg::CfgFamily;

namespace {

int flagsOf(const CfgFamily &family, const ObjectsByExchange &sent)
{
    int flags = 0;
    for (auto param = sent.begin(); param != sent.end(); ++param)
        flags |= family.exchanges.at(param.key()).flag;
    return flags;
}

} // namespace

WriteBackTask::WriteBackTask(const CfgFamily &family, const QString &devId, const QJsonObject &values,
                             const ObjectsByExchange &before, const ObjectsByExchange &sent, bool force,
                             QObject *parent)
    : ParamsCfgTask(family, devId, values, flagsOf(family, sent), parent)
    , m_family(family)
    , m_runValues(values)
    , m_before(before)
    , m_sent(sent)
    , m_force(force)
{
    dropUnaskedAnswers();
}

void WriteBackTask::handleDevParams(int exchange, const QJsonObject &device)
{
    m_decided.insert(undoOf(m_family, m_before, m_sent, {{exchange, device}}, m_force));
    const QJsonObject goBack = m_decided.value(exchange).goBack;
    if (goBack.isEmpty())
        goOnAfter(exchange);
    else
        writeLater(exchange, m_family.exchanges.at(exchange).writeBack(device, goBack, m_runValues));
}

} // namespace orda_engine
