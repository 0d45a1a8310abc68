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

/// A text in the middle of the device list, and for assistive technology, that says why the list shows no row. Hidden
/// while the list shows one.
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
    QString m_description; // the table's own, for assistive technology
    QTimer m_soon; // one look at the list for thousands of devices that change at a time
};

} // namespace orda_batchCfg
