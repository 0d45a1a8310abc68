#include "client/record/RunSummary.h"

#include <QLocale>

#include <algorithm>

namespace orda_client {

namespace {

QString timeText(const QVector<RunEntry> &entries)
{
    QString begin, end;
    for (const RunEntry &entry : entries) {
        if (entry.time.isEmpty())
            continue;
        if (begin.isEmpty() || entry.time < begin)
            begin = entry.time;
        end = std::max(end, entry.time);
    }
    return begin == end ? begin : RunSummary::tr("%1 to %2").arg(begin, end);
}

} // namespace

QString RunSummary::text(const QVector<RunEntry> &entries)
{
    const auto count = [&entries](RunEntry::Outcome outcome) {
        return int(std::count_if(entries.begin(), entries.end(),
                                 [outcome](const RunEntry &entry) { return entry.outcome == outcome; }));
    };
    const QLocale locale;
    QStringList texts{timeText(entries), tr("Devices: %1").arg(locale.toString(entries.size())),
                      tr("Succeeded: %1").arg(locale.toString(count(RunEntry::Succeeded))),
                      tr("Failed: %1").arg(locale.toString(count(RunEntry::Failed)))};
    if (count(RunEntry::Unreadable) > 0)
        texts.append(tr("Unreadable: %1").arg(locale.toString(count(RunEntry::Unreadable))));
    return texts.join(QStringLiteral("   "));
}

} // namespace orda_client
