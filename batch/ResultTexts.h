#pragma once

#include "batch/DeviceResult.h"

#include <QCoreApplication>

namespace orda_batch {

/// What results of devices have in common, whether they come now or out of the history.
class ResultTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::ResultTexts)

public:
    static QString outcome(orda_journal::Outcome outcome);
    /// "3 failed", in the order that the language has.
    static QString counted(int count, orda_journal::Outcome outcome);
    /// 'channelName: "a" -> "b"' of each.
    static QString changes(const QVector<Change> &changes, const QString &separator);
    /// Objects with "key", "before" and "after"; null stands for what a device does not have.
    static QJsonArray toJson(const QVector<Change> &changes);
    /// The members that each line about a device has. @param runId empty: null
    static QJsonObject toJson(const QString &runId, const DeviceResult &result);
    /// The columns of lines about devices in CSV: called as the members of JSON, in every language, because programs
    /// look for them.
    static QStringList csvHead();
    /// An object as a line, with its end. What a terminal would obey, and what other programs take for the end of a
    /// line, is written as JSON's own escapes.
    static QByteArray jsonLine(const QJsonObject &object);
};

} // namespace orda_batch
