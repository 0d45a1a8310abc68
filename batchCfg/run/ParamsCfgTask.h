#pragma once

#include "run/CfgExchange.h"

#include <vms_client_sdk/DevInfo.h>

#include <QObject>
#include <QVector>

namespace orda_batchCfg {

/// Configures one device: reads its parameters, changes what was asked for, writes them back, exchange by exchange, and
/// reports one result. All requests of a task go out under one request id. Lives on the user-interface thread; its
/// owner deletes it after the result.
class ParamsCfgTask : public QObject
{
    Q_OBJECT

public:
    /// Codes of signalCfgResult() that are not the device's own.
    enum ResultCode
    {
        Success = 0,
        NotVerified = -1, ///< the device came back with other settings than those written
        NotJson = -61003, ///< an answer is not valid JSON
        TimedOut = -61004, ///< the SDK gave up waiting
    };

    ~ParamsCfgTask() override;

    QString requestId() const { return m_requestId; }
    QString devId() const { return m_devId; }

signals:
    /// The one result, raised exactly once and never from the constructor.
    /// @param errorCode a ResultCode, or the "errorcode" with which the device refused a step
    void signalCfgResult(const QString &devId, const QString &msg, int errorCode);

protected:
    /// @param values the parameters to set, by the device's own keys
    /// @param exchanges the family's exchanges in their order; those run whose flag is in @p flags, the last one when
    /// none is
    ParamsCfgTask(const QString &devId, const QJsonObject &values, const QVector<CfgExchange> &exchanges,
                  const QString &timeoutText, QObject *parent, int flags = 0);

    /// Sends the first read request, then begins to listen. The last line of a family's constructor.
    void start();

private:
    friend class TaskRouter;
    void handleAnswer(const QString &text);
    void handleTimeout();
    void handleDevStatus(vms_sdk::DevStatus status);

    void handleRead(int exchange, const QJsonObject &result, int errorCode);
    void handleWritten(int exchange, int errorCode);
    void sendRead(int exchange);
    void sendWrite(int exchange);
    void send(const QString &method, const QString &text);
    static quint32 answeredBit(int exchange, bool isRead) { return 1U << unsigned(2 * exchange + (isRead ? 0 : 1)); }
    /// The first exchange from @p from on that the flags ask for, or -1.
    int selectedFrom(int from) const;
    void readAgain();
    void checkSettings(int exchange);
    void finish(const QString &msg, int errorCode);

    QString m_requestId;
    QString m_devId;
    int m_flags;
    QJsonObject m_values;
    QJsonObject m_devParams; // from the read to the write
    QVector<CfgExchange> m_exchanges;
    QString m_timeoutText;
    quint32 m_answered = 0; // bits of the requests answered since they were last sent: answeredBit()
    int m_written = -1; // the exchange whose write was sent last
    bool m_readAgain = false; // the limit of the check is running
    bool m_finished = false;
};

} // namespace orda_batchCfg
