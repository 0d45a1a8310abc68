#pragma once

#include <QTableView>

namespace orda_client {

/// The look and the keys of all tables of the client: whole rows, sorted by a click on a title, or by Alt+Up and
/// Alt+Down for the column of the present cell; one stop of the Tab key.
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
    /// Shortens the texts of these columns at their end, for lists: without its middle "a: 1 → 2; b: 3 → 4" would be
    /// taken for "a: 3 → 4". Other columns lose their middle, because a message has its error code at the end.
    void elideAtEnd(const QVector<int> &columns);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace orda_client
