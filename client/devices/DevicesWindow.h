#pragma once

#include "client/common/ToolWindow.h"

#include <QPointer>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace orda_base {
class SearchBox;
}

namespace orda_client {

class ClientSession;
class DeviceStates;
class DevicesFilter;
class DevicesModel;
class GroupList;
class GroupsMenu;
class LastOutcomes;
class TableOrText;
class TableView;
class TickNote;

/// Every device of the inventory, with its state, the reason for it and what became of it in its latest run: searched,
/// chosen by state and reason, sorted, saved as a table. From here devices are connected again, and ticked in the
/// form's list: the selected ones, those of a list that somebody has, those of a group or of a saved selection.
///
/// What rows say and how many have which state follows the devices. Which rows are shown, and in which order, stays
/// as it is until the user searches, chooses or sorts, asks for it with F5, or the inventory changes: so no row moves
/// away while somebody selects. How many rows wait for that is said above the table.
class DevicesWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; may go before this window
    /// @param session, states and settings must outlive this window
    DevicesWindow(ClientSession *session, DeviceStates *states, QWidget *form, ClientSettings *settings,
                  QWidget *parent = nullptr);

private:
    struct Selected
    {
        QStringList devIds; ///< as they stand
        QString current; ///< the device that has the keyboard's focus; empty: none
    };

    QWidget *buildStates();
    QWidget *buildTop();
    QWidget *buildTable();
    QWidget *buildBelow();
    QWidget *buildButtons();
    QPushButton *addButton(QHBoxLayout *row, const QString &text, const char *name, const QString &toolTip);
    void follow();

    void takeChanges(bool isListChanged);
    void updateGroups();
    void refresh(); ///< shows what the search and the choice want now
    void updateTexts();
    void updateSelection();
    QString emptyText() const;

    Selected selected() const;
    void select(const Selected &selected); ///< as far as they are shown
    QString devId(const QModelIndex &index) const;
    QModelIndex indexOf(const QString &devId) const;
    void connectAgain();
    void tickThese();

    ClientSession *m_session;
    DeviceStates *m_states;
    QPointer<QWidget> m_form;
    LastOutcomes *m_outcomes;
    DevicesModel *m_model;
    DevicesFilter *m_filter;
    int m_outdated = 0; // devices that the filter would show or leave out now

    GroupList *m_stateList = nullptr;
    orda_base::SearchBox *m_search = nullptr;
    TableOrText *m_shown = nullptr;
    TableView *m_table = nullptr;
    QLabel *m_counts = nullptr;
    QPushButton *m_refresh = nullptr;
    TickNote *m_note = nullptr;
    GroupsMenu *m_groups = nullptr;
    QPushButton *m_tick = nullptr;
    QPushButton *m_connect = nullptr;
    QPushButton *m_export = nullptr;
};

} // namespace orda_client
