#pragma once

#include <QLabel>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QTableWidget;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_batchCfg {

/// Says in the middle of the device list, and to assistive technology, why no row of it can be seen; hidden while one
/// can.
class EmptyListHint : public QLabel
{
    Q_OBJECT

public:
    /// @param table the list; the hint is a child of its viewport
    /// @param searchBox hides rows of it; outlives the hint
    EmptyListHint(QTableWidget *table, const orda_base::SearchBox *searchBox);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    QString reason() const;

    QTableWidget *m_table;
    const orda_base::SearchBox *m_searchBox;
    QString m_description; // the table's, for assistive technology, while it has rows
    QTimer m_soon; // devices come and go by the thousand
};

} // namespace orda_batchCfg
