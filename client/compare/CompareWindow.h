#pragma once

#include "client/common/ToolWindow.h"
#include "client/form/FormPage.h"

#include <QPointer>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_client {

class ClientSession;
class CompareModel;
class Notice;
class ReadingBar;
class StandardBar;
class TableFilter;
class TableOrText;
class TableView;
struct Family;

/// The present settings of the ticked devices as a table, compared with a standard. Reads only; the devices that differ
/// are ticked in the form's list, and values are kept as profiles and loaded into the page.
class CompareWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param session, @param settings must outlive this window
    /// @param form the batch-configuration form, or a window that has it; may be deleted before this window
    CompareWindow(ClientSession *session, QWidget *form, ClientSettings *settings, QWidget *parent);

    /// Reads the ticked devices anew, for the family whose page the form shows.
    void compare();

private:
    QWidget *buildTop();
    QWidget *buildChoices();
    QWidget *buildTable();
    QWidget *buildButtons();

    FormPage page() const;
    void chooseFamily(int index);
    void read();
    void tellNothing(const QString &why);
    void forgetDevices();
    void finish(const QString &error);
    void watch();
    void useStandard();
    void refresh();
    void updateTable();
    void updateSummary();
    void updateButtons();
    int chosenRow() const;
    QJsonObject standardValues() const;
    void takeModel();
    void load(const QJsonObject &values);
    void tickDifferent();

    ClientSession *m_session;
    QPointer<QWidget> m_form;
    CompareModel *m_model;
    TableFilter *m_filter;
    const Family *m_family = nullptr; // constant, and never deleted
    QJsonObject m_pageValues; // with which the devices were compared, when the page is the standard
    QString m_time; // of the reading
    QString m_complaint; // why there is no table
    QTimer m_watch;

    QComboBox *m_families;
    StandardBar *m_standard;
    QLabel *m_summary;
    QLabel *m_values;
    QCheckBox *m_onlyDifferent;
    QCheckBox *m_showOthers;
    orda_base::SearchBox *m_search;
    TableOrText *m_shown;
    TableView *m_table;
    ReadingBar *m_reading;
    Notice *m_notice;
    QPushButton *m_tick;
    QPushButton *m_export;
};

} // namespace orda_client
