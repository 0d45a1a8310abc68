#pragma once

#include <orda_base/Export.h>

#include <QList>
#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLayout;
QT_END_NAMESPACE

namespace XCOMMON {
class XTableWidget;
}

namespace orda_base {

class DelayedCall;

/// Connects a table that has check marks in column 0 with an "All" check box and a separate header row, and lets the
/// Space key tick the selected rows.
class ORDA_BASE_EXPORT TableOperWtStyle : public QObject
{
    Q_OBJECT

public:
    explicit TableOperWtStyle(QObject *parent);

    /// Called once; none of the widgets is owned.
    /// @param all ticks and unticks the rows that are not hidden, and shows the state of these rows only
    /// @param header the layout of the header row; its margins follow the table's scroll bar, so that headers stay over
    /// their columns. Null when the table shows its own header.
    /// @param hiddenColumns are hidden in the table and in the header row
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
    DelayedCall *m_updateAllBox; // later and once: thousands of rows may change, and each update goes through all rows
    Qt::CheckState m_shownState = Qt::Unchecked; // of the "All" box, as the rows have it
    bool m_isSettingAllBox = false;
    bool m_isTickingAll = false;
};

} // namespace orda_base
