#pragma once

#include "client/record/RunRecord.h"

#include <orda_base/TableWidget.h>

#include <optional>

namespace orda_client {

/// The failures of a run by their message, each with how many devices it has; above them the run as a whole.
class FailureGroupList : public orda_base::TableWidget
{
    Q_OBJECT

public:
    explicit FailureGroupList(QWidget *parent = nullptr);

    /// Keeps the chosen group while the record has it, else chooses the whole run.
    void setEntries(const QVector<RunEntry> &entries);

    /// The chosen group; nothing: the whole run.
    std::optional<FailureGroup> group() const;

signals:
    /// Also when a new record has taken the chosen group away.
    void signalGroupChosen();

private:
    void addRow(const QString &recorded, int count);

    QVector<FailureGroup> m_groups; // below the first row
};

} // namespace orda_client
