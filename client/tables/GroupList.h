#pragma once

#include <orda_base/TableWidget.h>

#include <QVector>

namespace orda_client {

/// Rows of a table that have something in common, such as the devices that failed with one message.
struct RowGroup
{
    QString key; ///< tells the groups of one list apart; never empty
    QString text; ///< what they have in common
    int count = 0;
};

/// A list of groups, each with how many rows it has; above them all rows.
class GroupList : public orda_base::TableWidget
{
    Q_OBJECT

public:
    /// @param name accessible name
    explicit GroupList(const QString &name, QWidget *parent = nullptr);

    /// Keeps the chosen group while there is one with its key, else chooses all rows.
    /// @param allText what all rows are called, @param all how many they are
    void setGroups(const QString &allText, int all, const QVector<RowGroup> &groups);

    /// The key of the chosen group; empty: all rows.
    QString group() const;

signals:
    /// Also when setGroups() has taken the chosen group away.
    void signalGroupChosen();

private:
    void addRow(const QString &recorded, int count);
    bool isSame(const QString &allText, const QVector<RowGroup> &groups) const;

    QString m_allText;
    QVector<RowGroup> m_groups; // below the first row
};

} // namespace orda_client
