#include "batch/RecordedRuns.h"

#include "journal/HistoryReader.h"

namespace orda_batch {

using orda_journal::Outcome;
using orda_journal::RunDetails;

std::optional<RunDetails> RecordedRuns::find(orda_journal::HistoryReader *history, const QString &run, QString *error)
{
    const QStringList ids = history->findRuns(run);
    *error = history->error();
    if (!error->isEmpty())
        return std::nullopt;
    if (ids.size() > 1) { // it gives two, even where there are more
        *error = tr("Several runs begin with \"%1\", among them %2.").arg(run, ids.join(QLatin1String(", ")));
        return std::nullopt;
    }
    std::optional<RunDetails> details = ids.isEmpty() ? std::nullopt : history->run(ids.constFirst());
    *error = history->error();
    if (!details && error->isEmpty())
        *error = run == QLatin1String("last") ? tr("There are no runs in the history.")
                                              : tr("There is no run \"%1\" in the history.").arg(run);
    return details;
}

QStringList RecordedRuns::failedIn(const RunDetails &run)
{
    QStringList failed;
    for (const orda_journal::DeviceRow &device : run.devices)
        if (device.outcome != Outcome::Done && device.outcome != Outcome::Unchanged)
            failed.append(device.devId);
    return failed;
}

} // namespace orda_batch
