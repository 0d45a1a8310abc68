#pragma once

#include "client/runs/RunCheck.h"
#include "client/tables/TableModel.h"

namespace orda_client {

/// The devices of a check, a row a device.
class RunCheckModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        State,
        Name,
        SerialNumber,
        Ip,
        Changes,
        Note,
        ColumnCount
    };

    explicit RunCheckModel(RunCheck::Kind kind, QObject *parent = nullptr);

    void setDevices(const QVector<CheckedDevice> &devices);
    const QVector<CheckedDevice> &devices() const { return m_devices; }

    int rowCount(const QModelIndex &parent = {}) const override;

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    RunCheck::Kind m_kind;
    QVector<CheckedDevice> m_devices;
};

} // namespace orda_client
