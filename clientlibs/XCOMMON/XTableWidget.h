#pragma once

#include <QTableWidget>
#include <QTimer>

namespace XCOMMON {

/// The client's table. It says when rows come, go, are hidden or shown, for which QTableWidget has no signal of its
/// own, and is not drawn anew for each of them when they come and go by the thousand.
class XTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit XTableWidget(QWidget *parent = nullptr);
    XTableWidget(int rows, int columns, QWidget *parent = nullptr);

    void setRowCount(int rows);
    void insertRow(int row);
    void removeRow(int row);
    void setRowHidden(int row, bool hide);

signals:
    /// After each of the above that changed something.
    void signalRowsChanged();

private:
    void drawLater(); ///< when many rows have come and gone in this frame

    QTimer m_frame; ///< runs while rows come and go
    int m_changesInFrame = 0;
};

} // namespace XCOMMON
