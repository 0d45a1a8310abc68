#pragma once

#include <QTableView>

namespace orda_client {

/// The table that shows a record, sorted by a click on a title.
class RunRecordView : public QTableView
{
    Q_OBJECT

public:
    /// @param record has the columns of RunRecordModel, and must outlive the view
    explicit RunRecordView(QAbstractItemModel *record, QWidget *parent = nullptr);
};

} // namespace orda_client
