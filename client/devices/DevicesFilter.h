#pragma once

#include "client/tables/TableFilter.h"

#include <QVector>

namespace orda_client {

class DevicesModel;

/// The devices that are shown. Which these are, and their order, changes when it is asked for and not when devices
/// change: a row must not move away from under the mouse, or out of a selection, while a site comes on line. What a row
/// says is always the present.
class DevicesFilter : public TableFilter
{
    Q_OBJECT

public:
    /// @param model must outlive the filter
    explicit DevicesFilter(DevicesModel *model, QObject *parent = nullptr);

    /// Searches, chooses and sorts anew, by the present texts and states; also needed when the model has other devices.
    /// The model is reset: to take thousands of rows out one by one takes seconds.
    void refresh();
    /// How many devices refresh() would show or leave out otherwise than now.
    int outdated() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    DevicesModel *m_model;
    /// By the model's row, as refresh() found it: so that the setters of TableFilter take no row out before.
    QVector<bool> m_isShown;
};

} // namespace orda_client
