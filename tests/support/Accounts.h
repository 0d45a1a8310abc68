#pragma once

#include "journal/HistoryReader.h"

#include <QtTest>

/// Waits until the condition holds. QTest::qWaitFor() sleeps 10 ms at each step of what is awaited; this one never.
template <typename Condition>
bool isReached(Condition condition, std::chrono::milliseconds patience = std::chrono::seconds(10))
{
    QTimer tick; // looks at what is no event
    tick.start(10);
    const QDeadlineTimer deadline(patience);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return condition();
}

/// The latest run of a history, or the one that has the id; empty when there is none.
inline orda_journal::RunDetails recordedRun(const orda_journal::HistoryOptions &options, const QString &id = "last")
{
    orda_journal::HistoryReader reader(options);
    return reader.run(reader.findRuns(id).value(0)).value_or(orda_journal::RunDetails());
}

/// Outcome and code by device, such as "failed -5"; a device that was accounted for twice is in it twice.
inline QMultiMap<QString, QString> accountsOf(const QVector<orda_journal::DeviceRow> &devices)
{
    QMultiMap<QString, QString> accounts;
    for (const orda_journal::DeviceRow &row : devices)
        accounts.insert(row.devId, orda_journal::outcomeName(row.outcome.value()) + QString(" %1").arg(row.code));
    return accounts;
}

/// Whether the history gives the same account of a run as those who have followed it, and the counts agree.
inline bool isRecorded(const orda_journal::RunDetails &run, const QVector<orda_journal::DeviceRow> &reported)
{
    QMap<orda_journal::Outcome, int> counts;
    for (const orda_journal::DeviceRow &row : reported)
        ++counts[row.outcome.value()];
    return run.run.counts == counts && accountsOf(run.devices) == accountsOf(reported);
}
