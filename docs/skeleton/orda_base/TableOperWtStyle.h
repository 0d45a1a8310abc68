#pragma once

#include <QList>
#include <QObject>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLayout;
QT_END_NAMESPACE

namespace XCOMMON {
class XTableWidget;
}

namespace orda_base {

/// Ties the "All" box and the header row over a list to it.
class TableOperWtStyle : public QObject
{
    Q_OBJECT

public:
    explicit TableOperWtStyle(QObject *parent);

    /// Called once, before there are rows. Nothing is owned.
    /// @param all ticks and unticks column 0 of the rows that can be seen
    /// @param header lays out the header row, one widget a column
    /// @param hiddenColumns the module hides none
    void setWts(QCheckBox *all, XCOMMON::XTableWidget *table, QLayout *header, const QList<int> &hiddenColumns);
};

} // namespace orda_base
