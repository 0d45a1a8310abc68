#pragma once

#include "client/runs/RunHistory.h"

#include <QObject>

namespace orda_engine {
class WriteJob;
}

namespace orda_client {

class ClientSession;

/// Writes to the devices of recorded runs: tries a run again on some of its devices, takes one back. Outlives the
/// windows that ask for it, so that a run goes on when they are closed. Each is a run of its own. What keeps one from
/// beginning is told in an alert. GUI thread.
class RunJobs : public QObject
{
    Q_OBJECT

public:
    /// @param session must outlive this object
    explicit RunJobs(ClientSession *session, QObject *parent = nullptr);
    /// Stops what is under way, without waiting.
    ~RunJobs() override;

    /// Configures devices of a run with the values that the run had for them. What RunTargets::toTryAgain() leaves out
    /// at this moment is not written to.
    /// @return id of the new run; empty when there is nothing to write to
    QString tryAgain(const ChosenRun &run, const QStringList &devIds);
    /// Takes a run back from some of its devices. What RunTargets::of() leaves out is not written to.
    /// @param force writes over what was changed since, too @return as tryAgain()
    QString takeBack(const ChosenRun &run, const QStringList &devIds, bool force);

    /// Whether one of these runs is under way.
    bool isWriting() const;
    /// What has not left yet does not leave; what has left is awaited.
    void stop();

private:
    QString start(orda_engine::WriteJob *job, const QString &title);

    ClientSession *m_session;
};

} // namespace orda_client
