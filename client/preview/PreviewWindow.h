#pragma once

#include "client/common/ToolWindow.h"
#include "client/form/PressedRun.h"
#include "client/preview/PreviewModel.h"

#include <QPointer>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_client {

class ClientSession;
class Notice;
class PlanGroupList;
class ReadingBar;
class TableFilter;
class TableOrText;
class TableView;
struct FormPage;
struct FormTicks;

/// What a press on Configure would do to each ticked device, worked out from what the devices hold now. Reads only. The
/// plan is of a moment: it counts no more when the page asks for something else, when a run has begun, or when the
/// inventory has changed, whose devices may have the same identifiers.
class PreviewWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param session, @param settings must outlive this window
    /// @param form the batch-configuration form, or a window that has it; may be deleted before this window
    PreviewWindow(ClientSession *session, QWidget *form, ClientSettings *settings, QWidget *parent);

    /// Reads the ticked devices and plans what the form's page would send to them, as both are now.
    void preview();

signals:
    /// The user wants this run: to exactly these devices, with the values of the plan. The page had these values when
    /// this was raised. Nothing of this window is used afterwards.
    void signalConfigure(const orda_client::PressedRun &run);

private:
    QWidget *buildTop();
    QWidget *buildGroups();
    QWidget *buildTable();
    QWidget *buildButtons();

    void plan(const FormPage &page, const FormTicks &ticks);
    void outdate(const QString &why);
    void tellNoPlan(const QString &why);
    void finish(const QString &error);
    void refresh(); ///< after devices were read
    void showPlan();
    void updateTable();
    void updateState();
    QString whyNotConfigurable() const;
    void configure();

    ClientSession *m_session;
    QPointer<QWidget> m_form;
    PreviewModel *m_model;
    TableFilter *m_filter;
    PressedRun m_plan; ///< its devices are all that were ticked; no family: there is no plan
    QString m_complaint; ///< why there is no plan
    bool m_isConfiguring = false; ///< the run that begins is the one that was asked for here
    QString m_outdated; ///< what has happened since that makes the plan worth nothing; empty: nothing
    QTimer m_watch;

    QLabel *m_headline;
    QLabel *m_values;
    orda_base::SearchBox *m_search;
    PlanGroupList *m_groups;
    TableOrText *m_shown;
    TableView *m_table;
    ReadingBar *m_reading;
    Notice *m_notice;
    QPushButton *m_configure;
    QPushButton *m_export;
};

} // namespace orda_client
