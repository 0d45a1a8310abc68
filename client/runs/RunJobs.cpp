#include "client/runs/RunJobs.h"

#include "client/runs/RunTargets.h"
#include "client/session/ClientSession.h"
#include "engine/ApplyJob.h"
#include "engine/UndoJob.h"
#include "journal/JournalTransport.h"

#include <orda_worker/SystemAssistant.h>

#include <QSet>

#include <algorithm>

namespace orda_client {

using orda_engine::WriteJob;

RunJobs::RunJobs(ClientSession *session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
}

RunJobs::~RunJobs() = default;

QString RunJobs::tryAgain(const ChosenRun &run, const QStringList &devIds)
{
    const RunTargets targets = RunTargets::toTryAgain(run, devIds);
    if (targets.selection.devIds.isEmpty())
        return {};
    return start(new orda_engine::ApplyJob(m_session->journal(), targets.selection, {}, this), tr("Try again"));
}

QString RunJobs::takeBack(const ChosenRun &run, const QStringList &devIds, bool force)
{
    if (!run.recorded.error().isEmpty())
        return {};
    const QStringList written = run.recorded.written().devIds;
    const QSet<QString> isWritten(written.begin(), written.end());
    QStringList targets = RunTargets::of(run, devIds).selection.devIds;
    targets.erase(std::remove_if(targets.begin(), targets.end(),
                                 [&isWritten](const QString &devId) { return !isWritten.contains(devId); }),
                  targets.end());
    if (targets.isEmpty())
        return {};
    return start(new orda_engine::UndoJob(m_session->journal(), run.recorded, targets, force, {}, this), tr("Undo"));
}

QString RunJobs::start(WriteJob *job, const QString &title)
{
    connect(job, &WriteJob::signalFinished, this, [job, title](const QString &error) {
        job->deleteLater();
        if (!error.isEmpty())
            orda_worker::SystemAssistant::instance().messageAlert(title, error);
    });
    job->start();
    return job->runId();
}

bool RunJobs::isWriting() const
{
    return !findChildren<WriteJob *>().isEmpty();
}

void RunJobs::stop()
{
    const auto jobs = findChildren<WriteJob *>();
    for (WriteJob *job : jobs)
        job->cancel();
}

} // namespace orda_client
