#pragma once

#include <QStackedWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QTableView;
QT_END_NAMESPACE

namespace orda_client {

/// A table, and in its place a text while it has no rows to show.
class TableOrText : public QStackedWidget
{
    Q_OBJECT

public:
    /// @param table is taken over
    /// @param name object name of the text
    TableOrText(QTableView *table, const QString &name, QWidget *parent = nullptr);

    /// Shows what is right now. @param emptyText why there are no rows, and what to do; may hold other people's texts
    void update(const QString &emptyText);
    bool hasRows() const;

private:
    QTableView *m_table;
    QLabel *m_text;
};

} // namespace orda_client
