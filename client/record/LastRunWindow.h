#pragma once

#include "client/record/PageRecord.h"

#include <QMainWindow>
#include <QTimer>

#include <optional>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_client {

class FailureGroupList;
class RunRecordFilter;
class RunRecordModel;
class RunRecordView;
class TickReport;
struct Family;

/// The outcome of a family's last run, device by device, from its record: sorted, searched, grouped by failure, saved
/// as a table, and the failed devices ticked again in the form. Follows the record while it is shown, and turns to the
/// family whose run has ended. Deletes itself when it is closed.
class LastRunWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; must outlive this window
    explicit LastRunWindow(QWidget *form, QWidget *parent = nullptr);

    /// @param family null: that of the newest record
    void turnTo(const Family *family);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *buildTop();
    QWidget *buildGroups();
    QWidget *buildTable();
    QWidget *buildButtons();
    void addShortcuts();

    void refreshAndContinue();
    void refresh(bool turnToNewest);
    void listFamilies();
    void showFamily(int index);
    void load();
    void showOtherRows(); ///< after the search or a choice has changed
    void updateView();
    QString emptyText() const;
    QString familyTitle(const Family &family) const;

    void tickFailedAgain();
    void exportCsv();

    QWidget *m_form;
    RunRecordModel *m_model;
    RunRecordFilter *m_filter;
    QTimer m_refreshTimer;
    QVector<FamilyRecord> m_records;
    const Family *m_family = nullptr; // which is shown
    std::optional<FamilyRecord> m_loaded; // the record that was read into the model, or could not be for m_error
    QString m_error; // why the record is not shown

    QComboBox *m_families;
    QLabel *m_summary;
    QLabel *m_complaint; // about the record of a run of this process
    QComboBox *m_outcomes;
    orda_base::SearchBox *m_search;
    FailureGroupList *m_groups;
    QStackedWidget *m_stack;
    RunRecordView *m_table;
    QLabel *m_empty;
    TickReport *m_report;
    QPushButton *m_tickAgain;
    QPushButton *m_export;
};

} // namespace orda_client
