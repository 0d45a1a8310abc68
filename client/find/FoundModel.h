#pragma once

#include "client/tables/TableModel.h"

#include <vms_client_sdk/onvif/FoundCamera.h>

#include <QSet>

namespace orda_client {

/// Cameras that have answered a search, in the order in which they came. Those that are not in the inventory yet can be
/// ticked; none is at first.
class FoundModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        State,
        Address,
        Sender,
        Hardware,
        Location,
        ColumnCount
    };

    using TableModel::TableModel;

    void clear();
    void add(const QVector<vms_sdk::FoundCamera> &cameras);
    /// @param addresses of the inventory's devices, as vms_sdk::hostAndPort() has them
    void setKnown(const QSet<QString> &addresses);

    const vms_sdk::FoundCamera &camera(int row) const { return m_rows.at(row).camera; }
    bool isKnown(int row) const { return m_rows.at(row).isKnown; }
    bool isTicked(int row) const { return m_rows.at(row).isTicked; }
    /// Those that are known already stay as they are.
    void setTicked(const QVector<int> &rows, bool isTicked);

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_rows.size(); }
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void signalTicksChanged();

protected:
    QStringList titles() const override;
    QString text(int row, int column) const override;
    SortKey sortKey(int row, int column) const override;
    bool isEmphasized(int row, int column) const override;

private:
    struct Row
    {
        vms_sdk::FoundCamera camera;
        bool isKnown = false;
        bool isTicked = false;
    };
    bool isKnownNow(const vms_sdk::FoundCamera &camera) const;

    QVector<Row> m_rows;
    QSet<QString> m_known;
};

} // namespace orda_client
