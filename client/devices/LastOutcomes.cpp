#include "client/devices/LastOutcomes.h"

#include "client/runs/RunTexts.h"
#include "journal/HistoryReader.h"

#include <families/Families.h>

#include <QtConcurrent>

#include <algorithm>
#include <utility>

namespace orda_client {

using orda_batchCfg::Families;
using orda_journal::LatestOutcome;

namespace {

/// As the form calls the family; its name where it is not known.
QString familyTitle(const QString &family)
{
    for (const orda_batchCfg::FamilyEntry &entry : Families::all())
        if (entry.family.name == family)
            return entry.title ? Families::tr(entry.title) : entry.family.translated(entry.family.title);
    return family;
}

} // namespace

LastOutcomes::LastOutcomes(const orda_journal::HistoryOptions &history, QObject *parent)
    : QObject(parent)
    , m_history(history)
{
    connect(&m_reading, &QFutureWatcher<Read>::finished, this, &LastOutcomes::take);
}

void LastOutcomes::read()
{
    if (m_reading.isRunning())
        m_isWantedAgain = true; // the run that has ended just now may not be in what is being read
    else
        m_reading.setFuture(QtConcurrent::run(&LastOutcomes::readNow, m_history));
}

LastOutcomes::Read LastOutcomes::readNow(const orda_journal::HistoryOptions &history)
{
    orda_journal::HistoryReader reader(history);
    Read read;
    const QVector<LatestOutcome> found = reader.latestOutcomes();
    read.error = reader.error();
    for (const LatestOutcome &outcome : found)
        read.outcomes[outcome.device.devId].append(
            {outcome,
             tr("%1: %2", "parameters, outcome")
                 .arg(familyTitle(outcome.family), RunTexts::outcome(*outcome.device.outcome)),
             RunTexts::time(outcome.began)});
    for (QVector<LastOutcome> &ofDevice : read.outcomes)
        std::sort(ofDevice.begin(), ofDevice.end(),
                  [](const LastOutcome &a, const LastOutcome &b) { return a.latest.began > b.latest.began; });
    return read;
}

void LastOutcomes::take()
{
    m_read = m_reading.result();
    if (std::exchange(m_isWantedAgain, false))
        read();
    emit signalRead();
}

const LastOutcomes::LastOutcome *LastOutcomes::of(const vms_sdk::DevInfo &device) const
{
    const auto known = m_read.outcomes.constFind(device.id);
    if (known == m_read.outcomes.constEnd())
        return nullptr;
    const auto meant = std::find_if(known->cbegin(), known->cend(), [&device](const LastOutcome &outcome) {
        return !outcome.latest.device.isReplacedBy(device.serialNumber);
    });
    return meant == known->cend() ? nullptr : &*meant;
}

} // namespace orda_client
