#pragma once

#include "fleet/FaultPlan.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QSet>

namespace device_fleet {

/// Reads one fault file (its form stands at FaultPlan). The first thing that is wrong refuses the whole file.
class FaultPlanReader
{
    Q_DECLARE_TR_FUNCTIONS(FaultPlanReader)

public:
    explicit FaultPlanReader(const QString &path);

    FaultPlan read(); ///< once
    const QString &error() const { return m_error; }
    const QStringList &warnings() const { return m_warnings; }

    /// All names that "fault" takes, for a user to choose from.
    static QStringList faultNames();

private:
    QJsonObject readFile();
    void readEntry(const QJsonObject &entry, FaultPlan &plan);
    QStringList names(const QJsonObject &entry, const QString &key);
    QString choice(const QJsonObject &entry, const QString &key, const QStringList &choices, const QString &otherwise);
    int number(const QJsonObject &entry, const QString &key, int min, int otherwise);
    void warnOfUnknownKeys(const QJsonObject &object, const QStringList &known);
    void fail(const QString &field, const QString &whatIsRight);

    QString m_path;
    QString m_where; // the entry at hand, for messages
    QString m_error;
    QStringList m_warnings;
};

} // namespace device_fleet
