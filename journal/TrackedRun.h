#pragma once

#include "journal/HistoryRows.h"

#include <run/CfgFamily.h>

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QVector>

#include <optional>

namespace orda_journal {

/// What became of a device, and what of it was changed.
struct Settled
{
    DeviceRow row; ///< with an outcome
    QVector<orda_batchCfg::MemberChange> changes = {}; ///< of the writes that have left
    QMap<int, QJsonObject> sent = {}; ///< by exchange: the "param" of the latest write that has left
};

/// A result as ParamsCfgTask gives it.
struct Result
{
    int code = 0;
    QString message;
};

/// The "param" of a write after which a device that held @p before holds @p taken as well, and nothing else is changed.
QJsonObject paramOfTaken(const orda_batchCfg::CfgExchange &exchange, const QJsonObject &before,
                         const QJsonObject &taken);

/// Follows the devices of one run by what goes over the wire: which reads and writes are on their way, what a device
/// held before, and what came of it. Free of input and output. GUI thread.
class TrackedRun
{
public:
    /// One request of the run, as its text has it.
    struct Request
    {
        int device = -1; ///< its place among the devices of the run; -1: the request is none of this run
        int exchange = 0;
        bool isWrite = false;
        QString method = {};
        QJsonObject param = {}; ///< of a write
    };
    /// What an answer to a request of the run is.
    struct Answer
    {
        int device = -1; ///< -1: none of this run, or to a request that was answered already
        int exchange = -1; ///< -1: it does not say
        bool isLate = false; ///< the device had its outcome already
        bool isAfter = false; ///< what the device holds since it was written to
        std::optional<Result> result = {}; ///< that a task makes of it, where it ends the task
        QString taken = {}; ///< ExchangeRow::taken
    };

    /// @param telling ids of the devices whose answers to writes say in "result" what was changed, and that change
    /// nothing else
    TrackedRun(const RunStart &start, const orda_batchCfg::CfgFamily &family, const QSet<QString> &telling = {});

    const RunStart &start() const { return m_start; }
    int deviceCount() const { return m_devices.size(); }
    /// -1 when it is none of the run's.
    int placeOf(const QString &devId) const { return m_placeById.value(devId, -1); }
    /// The device whose latest request has this id, or -1.
    int deviceOf(const QString &requestId) const;

    Request requestOf(const QString &devId, const QString &text);
    /// Whether a write of this exchange has left: then what is asked about it afterwards must be answered.
    bool hasLeft(const Request &request) const;
    /// Whether it is known what the device held before this write.
    bool knowsBefore(const Request &write) const;
    /// The request goes out now; a write as soon as the history has it.
    /// @return what the history has to hold before a write leaves; of a read nothing
    ExchangeRow take(const Request &request, const QString &requestId, const QString &text);
    /// The history has the write. @param number of the exchange @return whether it may leave; not when it was dropped
    /// meanwhile
    bool letLeave(int place, int number, const QString &requestId);
    /// Writes of the device that have not left yet do not leave any more.
    void dropHeld(int place);

    Answer takeAnswer(const QString &requestId, const QString &text);
    Result timeout() const;
    /// Of a request that was answered with @p code before it left.
    Result refusal(const Request &request, int code) const;

    bool isSettled(int device) const { return m_devices.at(device).isSettled; }
    /// Decides the outcome. Called once for a device.
    Settled settle(int place, const Result &result);
    /// Nothing was sent to the device. @param reason for the user
    Settled settleNotReached(int place, const QString &reason);

private:
    struct Exchange
    {
        QString beforeText; // the answer, until the history has it
        QJsonObject before; // what the device held before its first write
        QJsonObject sent; // the "param" of the latest write; of a device that tells it, only what it took of that
        QJsonObject taken; // by member, of all tries
        QVector<orda_batchCfg::MemberChange> changes; // from before to sent
        bool hasBefore = false;
        // As ParamsCfgTask sees it: answered since it was last sent. What was never sent is taken for sent.
        bool isReadAnswered = false;
        bool isWriteAnswered = false;
        bool awaitsRead = false;
        bool awaitsWrite = false; // the write has left, and the device has not said what became of it
        bool isInDoubt = false; // so had one of an earlier attempt, and nobody awaits its answer any more
        bool isHeld = false; // the write waits for the history
        bool hasLeft = false;
        bool isWritten = false; // the device said so
    };
    struct Device
    {
        bool isTelling = false;
        QString fault; // what it said of its latest failure
        QString requestId; // of the latest request
        QString overdueId; // under which it had no answer when its outcome was decided
        QVector<Exchange> exchanges;
        bool isSettled = false;
    };

    static QJsonObject supposed(const Exchange &exchange);
    Answer takeWritten(int place, int number, const QJsonObject &answer, int code);
    std::optional<Result> resultOfRead(const Device &device, int exchange, const QJsonObject &held, int code) const;
    std::optional<Result> resultOfWrite(int device, int exchange, int code) const;
    bool isLastExchange(int device, int exchange) const;
    Settled settled(int place, Outcome outcome, const Result &result);

    RunStart m_start;
    const orda_batchCfg::CfgFamily &m_family; // constant, and never deleted
    QVector<Device> m_devices;
    QHash<QString, int> m_placeById;
    QHash<QString, int> m_placeByRequest;
    QString m_lastRead; // all devices are asked the same: its text is looked at once
    Request m_lastRequest;
};

} // namespace orda_journal
