#pragma once

#include <QHeaderView>

#include <vector>

namespace orda_base {

/// The vertical header of a table whose rows are all of one fixed height. QHeaderView writes its list of hidden rows
/// anew for each single row that comes or goes; where a search hides thousands, that is all it does. This one appends
/// without looking at the others, and brings the hidden rows in line with many removals at a time: before the next look
/// at any row, for which QHeaderView asks for the layout that has been put off.
class RowHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit RowHeader(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    void doItemsLayout() override;

protected slots:
    // In place of QHeaderView's slots of the same names, by which it connects itself to its model.
    void sectionsInserted(const QModelIndex &parent, int first, int last);
    void sectionsAboutToBeRemoved(const QModelIndex &parent, int first, int last);
    void _q_sectionsRemoved(const QModelIndex &parent, int first, int last);

private:
    bool m_isStale = false; ///< rows have gone that the sections do not show yet
    std::vector<bool> m_hidden; ///< by row, as it is to be; kept up while stale
};

} // namespace orda_base
