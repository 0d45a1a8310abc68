#pragma once

#include <QTableWidget>

namespace XCOMMON {

/// The client's table. It says when rows come, go, are hidden or shown, for which QTableWidget has no signal of its
/// own.
class XTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit XTableWidget(QWidget *parent = nullptr);

    void setRowCount(int rows);
    void insertRow(int row);
    void removeRow(int row);
    void setRowHidden(int row, bool hide);

signals:
    /// After each of the above that changed something.
    void signalRowsChanged();
};

} // namespace XCOMMON
