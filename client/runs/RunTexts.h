#pragma once

#include "client/form/ParameterTexts.h"
#include "engine/DevicePlan.h"
#include "journal/HistoryRows.h"

#include <QCoreApplication>
#include <QHash>

#include <memory>

namespace orda_client {

/// Recorded runs in an operator's words. A copy that any thread may use.
class RunTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RunTexts)

public:
    /// @param form the batch-configuration form, or a window that has it; read in the constructor only; GUI thread
    explicit RunTexts(const QWidget *form);

    /// The family as the navigation of the form calls it; its name where the form does not have it.
    QString family(const QString &name) const;
    /// What a run was to set, each parameter once. Nothing of an undo, whose devices each have their own.
    QStringList values(const orda_journal::RunRow &run) const;
    /// "Bit Rate: 512 → 1024; …".
    QString changes(const QString &family, const QVector<orda_batchCfg::MemberChange> &changes) const;
    /// Null for a family that the form does not have.
    const ParameterTexts *parameters(const QString &family) const;

    /// "Configured", or "Undo of" the run that began then. @param undone 0: not known
    static QString kind(const orda_journal::RunRow &run, qint64 undone);
    static QString outcome(orda_journal::Outcome outcome);
    /// Of a device without one the text for it.
    static QString outcome(const orda_journal::DeviceRow &device, bool isUnderWay);
    /// "Done: 12, failed: 3", or why that is not known.
    static QString counts(const orda_journal::RunRow &run);
    static QString time(qint64 time);
    /// Empty of a run without an end.
    static QString duration(const orda_journal::RunRow &run);
    /// "Cam 2 (SN123)" as far as there is a name or a serial number, else the device's id.
    static QString device(const orda_journal::DeviceRow &device);

    /// Whether something of a run is not in the device as it was meant, or nobody knows.
    static bool isFailure(const std::optional<orda_journal::Outcome> &outcome);

private:
    QHash<QString, QString> m_titles; // by family
    QHash<QString, std::shared_ptr<const ParameterTexts>> m_parameters; // by family
};

} // namespace orda_client
