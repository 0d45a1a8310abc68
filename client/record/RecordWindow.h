#pragma once

#include "client/common/ToolWindow.h"
#include "client/record/RunRecord.h"

#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_client {

class GroupList;
class RunRecordModel;
class SearchedTable;
class Notice;
struct Family;

/// One record file of a run, device by device: sorted, searched, grouped by failure, saved as a table, and the failed
/// devices ticked again in the form. For records whose run the history does not have, such as those of older versions.
class RecordWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// Asks for a file and shows it in a window of its own. Returns at once.
    /// @param form the batch-configuration form, or a window that has it
    static void askForFile(QWidget *form, ClientSettings *settings, QWidget *parent);

    /// @param path absolute; the file is read once, now
    RecordWindow(const QString &path, QWidget *form, ClientSettings *settings, QWidget *parent);

    /// Under which the failures with one message are found; empty for none.
    static QString keyOf(RunEntry::Outcome outcome, const QString &message);

private:
    void buildTable();
    QWidget *buildGroups();
    QWidget *buildButtons();
    void load(const QString &path);
    void showGroup();
    void updateView();
    void tickFailedAgain();

    QPointer<QWidget> m_form;
    const Family *m_family = nullptr; // whose record the file is by its name; null: not known
    QString m_complaint; // about the record of a run of this process
    RunRecordModel *m_model;
    QLabel *m_summary;
    GroupList *m_groups;
    SearchedTable *m_table = nullptr;
    Notice *m_report;
    QPushButton *m_tickAgain = nullptr;
    QPushButton *m_export = nullptr;
};

} // namespace orda_client
