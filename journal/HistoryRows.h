#pragma once

#include "journal/Outcome.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace orda_journal {

/// JSON in one line, as the history has it.
inline QString jsonText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

/// A run that is about to begin.
struct RunStart
{
    QString id; ///< a UUID without braces
    QString family; ///< CfgFamily::name
    QString kind; ///< "apply" or "undo"
    QString undoes; ///< id of the run that an undo takes back; else empty
    QJsonObject values; ///< what is to be set; of an undo the values of the run that it takes back
    QHash<QString, QJsonObject> ownValues = {}; ///< by device id, for devices whose values are not those of the run
    QStringList devIds; ///< each once, in the order in which they were chosen
};

/// What a device was asked and what it answered in one exchange of a run, as texts: the requests as they left, the
/// answers as they came. Empty where there is none.
struct ExchangeRow
{
    QString devId;
    int exchange = 0; ///< its place among the exchanges of the family
    QString before; ///< the answer to the last read before the first write
    QString sent; ///< the latest write request
    QString after; ///< the answer to the latest read since that write
    /// Where the device says itself what it took, as those do that speak ONVIF: the members that are not as before, by
    /// name, a JSON object. Then nothing else was changed, whatever was sent.
    QString taken = {};
};

/// What became of a device.
struct DeviceRow
{
    QString devId;
    std::optional<Outcome> outcome; ///< none while the run is under way
    int code = 0; ///< as in ParamsCfgTask::signalCfgResult()
    QString message; ///< in the language of the client
    QString late; ///< an answer that came after the outcome, as text
    // What the device was called at the time of the run. The writer fills these in from the device store.
    QString name = {}, serialNumber = {}, ip = {};
    QJsonObject ownValues = {}; ///< empty: those of the run

    /// Whether what has this id now is another device: it was replaced since, or the inventory is of another site that
    /// counts its devices alike. @param serialNumberNow empty where it is not known
    bool isReplacedBy(const QString &serialNumberNow) const
    {
        return !serialNumber.isEmpty() && !serialNumberNow.isEmpty() && serialNumber != serialNumberNow;
    }
};

/// What became of a device in the latest run that it has an outcome of.
struct LatestOutcome
{
    DeviceRow device; ///< id, outcome and serial number only
    QString runId, family;
    qint64 began = 0; ///< of the run: milliseconds since the epoch, UTC
};

/// A run as the history has it.
struct RunRow
{
    QString id, family, kind, undoes;
    QJsonObject values;
    QString program; ///< that made it, such as "orda_client 1.0.0"
    qint64 began = 0; ///< milliseconds since the epoch, UTC
    qint64 ended = 0; ///< 0: under way, or its program has ended before
    bool isUnderWay = false; ///< here or in another process
    int devices = 0;
    QMap<Outcome, int> counts = {}; ///< of a run that has ended; together as many as there are devices
};

/// A run with everything that is known of it.
struct RunDetails
{
    RunRow run;
    QVector<DeviceRow> devices = {}; ///< in the order in which they were chosen
    QVector<ExchangeRow> exchanges = {}; ///< by device, then by exchange
};

} // namespace orda_journal

Q_DECLARE_METATYPE(orda_journal::RunStart)
Q_DECLARE_METATYPE(orda_journal::ExchangeRow)
Q_DECLARE_METATYPE(orda_journal::DeviceRow)
