#pragma once

#include <orda_base/Export.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLayout;
QT_END_NAMESPACE

namespace XCOMMON {
class XTableWidget;
}

namespace orda_base {

/// Ties an "All" check box and a header row of its own to a table with check marks in column 0, and lets the Space key
/// tick the selected rows.
class ORDA_BASE_EXPORT TableOperWtStyle : public QObject
{
    Q_OBJECT

public:
    explicit TableOperWtStyle(QObject *parent);

    /// Called once; none of the widgets is owned.
    /// @param all ticks and unticks the rows that can be seen; its state speaks of these. Rows that are hidden are
    /// never touched.
    /// @param header lays out the header row; it keeps clear of the table's scroll bar, so that headers stand over
    /// their columns.
    ///        Null: the table has its own header.
    /// @param hiddenColumns not shown, in the table and in the header row
    void setWts(QCheckBox *all, XCOMMON::XTableWidget *table, QLayout *header, const QList<int> &hiddenColumns);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setVisibleRows(bool checked);
    void toggleSelectedRows();
    void updateAllBox();
    void alignHeader();

    QPointer<QCheckBox> m_all;
    QPointer<XCOMMON::XTableWidget> m_table;
    QPointer<QLayout> m_header;
    QTimer m_updateSoon; // brings the box up to date at the next turn of the event loop
    bool m_isTickingAll = false;
};

} // namespace orda_base
