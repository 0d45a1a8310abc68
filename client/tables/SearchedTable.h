#pragma once

#include "client/tables/TableFilter.h"

#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QHBoxLayout;
class QLabel;
class QStackedWidget;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_client {

class TableView;

/// A table with a choice of its rows and a search above it, and a text in its place while it has no rows to show.
class SearchedTable : public QWidget
{
    Q_OBJECT

public:
    /// Some of the rows, to be chosen by name.
    struct Choice
    {
        QString name;
        TableFilter::Accepts accepts; ///< null: all rows
    };

    /// @param model must outlive this widget
    /// @param digits as for TableView
    /// @param name accessible name of the table; object names begin with @p objectName
    /// @param what the search looks at, for its tool tip
    SearchedTable(TableModel *model, const QVector<int> &digits, const QString &objectName, const QString &name,
                  const QString &what, QWidget *parent = nullptr);

    /// The choices, the first of which holds at first; without them there is nothing to choose.
    /// @param caption with a mnemonic
    void setChoices(const QString &caption, const QVector<Choice> &choices);
    /// A further condition for all rows; null: none.
    void setAccepts(const TableFilter::Accepts &accepts);
    /// Puts a widget at the left end of the line above the table.
    void addBefore(QWidget *widget);

    /// Shown while the table has no rows at all; other people's texts are safe in it.
    void setEmptyText(const QString &text);

    TableFilter *filter() const { return m_filter; }
    TableView *view() const { return m_view; }
    /// The rows of the model that are selected, as they stand.
    QVector<int> selectedRows() const;
    /// Selects a row of the model, if it is shown, and scrolls to it.
    void selectRow(int row);

signals:
    /// Other rows are shown, because of the search, the choice or the model.
    void signalShownChanged();
    void signalSelectionChanged();

private:
    void applyAccepts();
    void showTableOrText();
    void update();

    TableModel *m_model;
    TableFilter *m_filter;
    QVector<Choice> m_choices;
    TableFilter::Accepts m_accepts;
    QHBoxLayout *m_top;
    QLabel *m_caption;
    QComboBox *m_choice;
    orda_base::SearchBox *m_search;
    QStackedWidget *m_stack;
    TableView *m_view;
    QLabel *m_empty;
    QString m_emptyText;
    bool m_hasHadRows = false;
};

} // namespace orda_client
