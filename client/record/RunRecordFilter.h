#pragma once

#include "client/record/RunRecord.h"

#include <QSortFilterProxyModel>

#include <optional>

namespace orda_client {

class RunRecordModel;

/// The rows of a record that are shown, filtered and sorted.
class RunRecordFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// @param model must outlive the filter
    explicit RunRecordFilter(RunRecordModel *model, QObject *parent = nullptr);

    /// True: leaves out the devices that were configured.
    void setFailedOnly(bool failedOnly);
    /// Only the failures of this group; nothing: whatever the message.
    void setGroup(const std::optional<FailureGroup> &group);
    /// Only rows with this text in their name, serial number, address or message, in capitals or not.
    void setKeyword(const QString &keyword);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    RunRecordModel *m_model;
    bool m_failedOnly = false;
    std::optional<FailureGroup> m_group;
    QString m_keyword;
};

} // namespace orda_client
