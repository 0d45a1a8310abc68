#pragma once

#include "client/runs/RunHistory.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace orda_client {

class GroupList;
class RunDeviceModel;
class SearchedTable;

/// One run: what it was, its failures in groups, and its devices.
class ChosenRunPane : public QWidget
{
    Q_OBJECT

public:
    explicit ChosenRunPane(QWidget *parent = nullptr);

    /// The same run read anew keeps group, search and choice. @param run null: none
    void setRun(const ChosenRunPtr &run);
    const ChosenRunPtr &run() const;

    /// Ids of the devices in the selected rows; without any those of the chosen group that are shown; without one none.
    QStringList meantDevices() const;
    /// Ids of the devices in the selected rows.
    QStringList selectedDevices() const;
    bool isEmpty() const;
    /// Asks for a file and saves the rows that are shown.
    void exportCsv();

signals:
    /// Another run, other rows or another selection.
    void signalChanged();

private:
    QWidget *buildGroups();
    QString summary() const;
    void showGroup();
    QStringList devicesIn(const QVector<int> &rows) const;

    RunDeviceModel *m_model;
    QLabel *m_summary;
    GroupList *m_groups;
    SearchedTable *m_devices;
};

} // namespace orda_client
