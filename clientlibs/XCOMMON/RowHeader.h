#pragma once

#include <QHeaderView>

namespace XCOMMON {

/// The vertical header of the client's tables. QHeaderView writes the list of its hidden rows anew for each row that is
/// added; where thousands are hidden and rows are added one by one at the bottom, that is all it does.
class RowHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit RowHeader(QWidget *parent = nullptr);

protected slots:
    /// In place of QHeaderView's slot, which the header connects to its model by this name.
    void sectionsInserted(const QModelIndex &parent, int logicalFirst, int logicalLast);
};

} // namespace XCOMMON
