#pragma once

#include "run/CfgFamily.h"

#include <vms_client_sdk/DevInfo.h>

#include <QObject>

#include <chrono>
#include <optional>

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

    // Messages of results that are the same in all families.
    static QString successText();
    static QString notJsonText();

    ~ParamsCfgTask() override;

    QString requestId() const { return m_requestId; }
    QString devId() const { return m_devId; }

signals:
    /// The one result, raised exactly once and never from the constructor.
    /// @param errorCode a ResultCode, or the "errorcode" with which the device refused a step
    void signalCfgResult(const QString &devId, const QString &msg, int errorCode);

protected:
    /// Sends the first read request, then begins to listen.
    /// @param values the parameters to set, by the device's own keys
    /// @param flags those exchanges of the family run whose flag is among them; the last one when none is
    ParamsCfgTask(const CfgFamily &family, const QString &devId, const QJsonObject &values, int flags, QObject *parent);

    /// In place of the limit of the family's exchanges.
    void setCheckLimit(std::chrono::milliseconds limit) { m_checkLimit = limit; }

    /// An exchange has been read: goes on by writeLater() or goOnAfter(), once. Writes, unless a subclass knows better.
    /// @param device what the device holds
    virtual void handleDevParams(int exchange, const QJsonObject &device);
    /// Writes after the pause: @p param, or else what the exchange makes of the values and of what was just read.
    void writeLater(int exchange, const std::optional<QJsonObject> &param = {});
    /// The next exchange after the pause, or the end with success.
    void goOnAfter(int exchange);
    /// For the constructor of a subclass: from now on what was never asked is dropped. The tasks of the families take
    /// it for the answer to a step of theirs, as the protocol has it.
    void dropUnaskedAnswers();

private:
    friend class TaskRouter;
    void handleAnswer(const QString &text);
    void handleTimeout();
    void handleDevStatus(vms_sdk::DevStatus status);

    void handleRead(int exchange, const QJsonObject &answer, int errorCode);
    void handleWritten(int exchange, int errorCode);
    void sendRead(int exchange);
    void sendWrite(int exchange);
    void send(const QString &method, const QString &text);
    static quint32 answeredBit(int exchange, bool isRead) { return 1U << unsigned(2 * exchange + (isRead ? 0 : 1)); }
    void readAgain();
    void checkSettings(int exchange);
    void finish(const QString &msg, int errorCode);

    const CfgFamily &m_family; // constant, and never deleted
    QString m_requestId;
    QString m_devId;
    int m_flags;
    QJsonObject m_values;
    QJsonObject m_devParams; // from the read to the write
    std::optional<QJsonObject> m_ownParam; // what is to be written, where a subclass has made it
    QJsonObject m_checked; // the "param" that was written, where the device is to be read again
    std::chrono::milliseconds m_checkLimit{0}; // 0: the exchange's
    quint32 m_answered = 0; // bits of the requests answered since they were last sent: answeredBit()
    int m_written = -1; // the exchange whose write was sent last
    bool m_readAgain = false; // the limit of the check is running
    bool m_finished = false;
};

/// A family's CfgFamily::createTask, for a task without flags.
template <typename Task>
ParamsCfgTask *newTask(const QString &devId, const QJsonObject &values, int, QObject *parent)
{
    return new Task(devId, values, parent);
}

/// The same for a task that is told which exchanges to run.
template <typename Task>
ParamsCfgTask *newTaskWithFlags(const QString &devId, const QJsonObject &values, int flags, QObject *parent)
{
    return new Task(devId, values, flags, parent);
}

} // namespace orda_batchCfg
