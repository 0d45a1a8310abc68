#pragma once

#include <QTableView>

namespace orda_client {

/// The look and the keys of all tables of the client: whole rows, sorted by a click on a title, one stop of the Tab
/// key.
class TableView : public QTableView
{
    Q_OBJECT

public:
    /// @param model of TableFilter as a rule, must outlive the view
    /// @param digits by column its width in digits; 0: as wide as its title. The last column takes the rest
    /// @param name accessible name
    TableView(QAbstractItemModel *model, const QVector<int> &digits, const QString &name, QWidget *parent = nullptr);

    /// @param digits as in the constructor, for a model that has other columns now
    void setWidths(const QVector<int> &digits);
};

} // namespace orda_client
