#include "client/devices/DevicesWindow.h"

#include "client/common/Widgets.h"
#include "client/devices/DeviceStates.h"
#include "client/devices/DevicesFilter.h"
#include "client/devices/DevicesModel.h"
#include "client/devices/GroupsMenu.h"
#include "client/devices/LastOutcomes.h"
#include "client/devices/TickNote.h"
#include "client/devices/TickTheseDialog.h"
#include "client/form/FormTicks.h"
#include "client/session/ClientSession.h"
#include "client/tables/CsvFile.h"
#include "client/tables/GroupList.h"
#include "client/tables/TableOrText.h"
#include "client/tables/TableView.h"
#include "journal/JournalTransport.h"

#include <orda_base/SearchBox.h>
#include <orda_data/DevsMgrData.h>

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace orda_client {

namespace {

constexpr QSize windowSize(1480, 760); // or the screen's
constexpr int statesWidth = 340;

} // namespace

DevicesWindow::DevicesWindow(ClientSession *session, DeviceStates *states, QWidget *form, ClientSettings *settings,
                             QWidget *parent)
    : ToolWindow(QStringLiteral("devicesWindow"), windowSize, settings, parent)
    , m_session(session)
    , m_states(states)
    , m_form(form)
    , m_outcomes(new LastOutcomes(session->historyOptions(), this))
    , m_model(new DevicesModel(states, m_outcomes, this))
    , m_filter(new DevicesFilter(m_model, this))
{
    setWindowTitle(tr("Devices"));
    auto *splitter = new QSplitter;
    splitter->addWidget(buildStates());
    auto *right = new QWidget;
    auto *beside = new QVBoxLayout(right);
    beside->setContentsMargins(0, 0, 0, 0);
    beside->addWidget(buildTop());
    beside->addWidget(buildTable(), 1);
    beside->addWidget(buildBelow());
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({statesWidth, windowSize.width() - statesWidth});

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter, 1);
    m_note = new TickNote(form);
    layout->addWidget(m_note);
    layout->addWidget(buildButtons());
    setContent(content);
    follow();
    updateGroups();
    refresh();
    m_table->setFocus();
}

QWidget *DevicesWindow::buildStates()
{
    m_stateList = new GroupList(tr("States"));
    m_stateList->setObjectName(QStringLiteral("states"));
    m_stateList->setTextElideMode(Qt::ElideRight); // no reason has a code at its end
    auto *caption = new QLabel(tr("Sho&w"));
    caption->setBuddy(m_stateList);
    auto *states = new QWidget;
    auto *layout = new QVBoxLayout(states);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(m_stateList);
    return states;
}

QWidget *DevicesWindow::buildTop()
{
    m_search = new orda_base::SearchBox;
    m_search->setObjectName(QStringLiteral("deviceSearch"));
    m_search->setToolTip(
        tr("Searches all columns (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    m_counts = plainLabel("counts");
    auto *top = new QWidget;
    auto *layout = new QHBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_counts, 1);
    layout->addWidget(m_search);
    return top;
}

QWidget *DevicesWindow::buildTable()
{
    // By column, in digits.
    m_table = new TableView(m_filter, {22, 34, 20, 16, 14, 11, 13, 13, 30, 20}, tr("Devices"));
    m_table->setObjectName(QStringLiteral("devices"));
    m_table->elideAtEnd({DevicesModel::State});
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_shown = new TableOrText(m_table, QStringLiteral("empty"));
    return m_shown;
}

// What is about the table has a row of its own: all buttons in one would be too wide for small screens.
QWidget *DevicesWindow::buildBelow()
{
    auto *below = new QWidget;
    auto *row = new QHBoxLayout(below);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    m_refresh =
        addButton(row, tr("&Refresh"), "refresh", tr("Searches, chooses and sorts anew, by the present states (F5)"));
    m_export = addButton(row, tr("&Export CSV…"), "exportCsv",
                         tr("Saves the rows that are shown, in their order, for a spreadsheet"));
    return below;
}

QPushButton *DevicesWindow::addButton(QHBoxLayout *row, const QString &text, const char *name, const QString &toolTip)
{
    auto *button = styledButton(text, name);
    button->setToolTip(toolTip);
    row->addWidget(button);
    return button;
}

QWidget *DevicesWindow::buildButtons()
{
    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    m_tick = addButton(row, tr("&Tick selected"), "tickSelected",
                       tr("Ticks exactly the selected devices in the form's list"));
    m_tick->setProperty("common_bt_style2", {});
    m_tick->setProperty("common_bt_style1", true);
    const auto *these =
        addButton(row, tr("T&ick these…"), "tickThese",
                  tr("Takes a list of serial numbers, names or addresses, and ticks exactly these devices"));
    connect(these, &QPushButton::clicked, this, &DevicesWindow::tickThese);
    auto *groups = addButton(row, tr("&Groups"), "groups",
                             tr("Ticks the devices of a group or of a saved selection, and saves selections"));
    m_groups = new GroupsMenu(settings(), this);
    groups->setMenu(m_groups);
    m_connect = addButton(
        row, tr("C&onnect again"), "connectAgain",
        tr("Tries the selected devices that are off line again at once, those too that have refused the sign-on"));
    row->addStretch();
    const auto *close = addButton(row, tr("&Close"), "close", {});
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    return buttons;
}

void DevicesWindow::follow()
{
    connect(m_states, &DeviceStates::signalChanged, this, &DevicesWindow::takeChanges);
    connect(m_stateList, &GroupList::signalGroupChosen, this, &DevicesWindow::refresh);
    connect(m_search, &orda_base::SearchBox::signalSearchByKeyword, this, &DevicesWindow::refresh);
    connect(m_refresh, &QPushButton::clicked, this, &DevicesWindow::refresh);
    auto *again = new QShortcut(QKeySequence::Refresh, this);
    connect(again, &QShortcut::activated, this, &DevicesWindow::refresh);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &DevicesWindow::updateSelection);
    connect(m_tick, &QPushButton::clicked, this, [this] { m_note->tick(selected().devIds); });
    connect(m_connect, &QPushButton::clicked, this, &DevicesWindow::connectAgain);
    connect(m_export, &QPushButton::clicked, this,
            [this] { CsvFile::saveAs(this, *m_filter, QStringLiteral("devices")); });
    connect(m_groups, &GroupsMenu::signalChosen, m_note, &TickNote::tick);
    connect(m_groups, &GroupsMenu::signalTold, m_note, &TickNote::tell);
    connect(m_groups, &GroupsMenu::signalSaveRows, this, [this] { m_groups->save(selected().devIds); });
    connect(m_groups, &GroupsMenu::signalSaveTicks, this,
            [this] { m_groups->save(m_form ? FormTicks::of(m_form).devIds : QStringList()); });

    connect(m_outcomes, &LastOutcomes::signalRead, this, [this] {
        m_model->updateOutcomes();
        m_outdated = m_filter->outdated();
        updateTexts();
        if (!m_outcomes->error().isEmpty())
            m_note->tell(m_outcomes->error());
    });
    if (m_session->journal())
        connect(m_session->journal(), &orda_journal::JournalTransport::signalRunRecorded, m_outcomes,
                &LastOutcomes::read);
    m_outcomes->read();
}

void DevicesWindow::takeChanges(bool isListChanged)
{
    if (isListChanged) {
        Selected selected = this->selected();
        const auto serialNumber = [this](const QString &devId) {
            return m_model->index(m_model->rowOf(devId), DevicesModel::SerialNumber).data(Qt::EditRole).toString();
        };
        QHash<QString, QString> before;
        for (const QString &devId : qAsConst(selected.devIds))
            before.insert(devId, serialNumber(devId));
        m_model->loadDevices();
        // Nobody has selected what another inventory has under the same identifier.
        selected.devIds.erase(
            std::remove_if(selected.devIds.begin(), selected.devIds.end(),
                           [&](const QString &devId) { return serialNumber(devId) != before.value(devId); }),
            selected.devIds.end());
        m_filter->refresh();
        select(selected);
        m_outdated = 0;
    } else {
        m_model->updateStates();
        m_outdated = m_filter->outdated();
    }
    updateGroups();
    updateTexts();
}

void DevicesWindow::updateGroups()
{
    m_stateList->setGroups(tr("All devices"), m_model->rowCount(), m_model->groups(m_stateList->group()));
}

void DevicesWindow::refresh()
{
    const Selected selected = this->selected();
    m_filter->setKeyword(m_search->text());
    m_filter->setAccepts([this, group = m_stateList->group()](int row) { return m_model->isInGroup(row, group); });
    m_filter->refresh();
    m_outdated = 0;
    select(selected);
    updateTexts();
}

void DevicesWindow::updateTexts()
{
    m_shown->update(emptyText());
    m_export->setEnabled(m_filter->rowCount() > 0);
    updateSelection();
}

void DevicesWindow::updateSelection()
{
    const QLocale locale;
    const int selected = this->selected().devIds.size();
    QStringList parts{
        tr("%1 of %Ln device(s) shown", nullptr, m_model->rowCount()).arg(locale.toString(m_filter->rowCount()))};
    if (selected > 0)
        parts.append(tr("%Ln selected", "devices", selected));
    if (m_outdated > 0)
        parts.append(tr("%Ln changed since and would be shown or left out now", "devices", m_outdated));
    m_counts->setText(parts.join(QStringLiteral(", ")));
    m_tick->setEnabled(selected > 0);
    m_connect->setEnabled(selected > 0);
}

QString DevicesWindow::emptyText() const
{
    return m_model->rowCount() == 0 ? tr("There are no devices. Open an inventory in the client's window.")
                                    : tr("No device fits the search and the choice beside it.");
}

DevicesWindow::Selected DevicesWindow::selected() const
{
    // By ranges: QItemSelectionModel::selectedRows() compares each row with each range.
    QVector<int> rows;
    const QItemSelection ranges = m_table->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    Selected selected;
    for (const int row : qAsConst(rows))
        selected.devIds.append(devId(m_filter->index(row, 0)));
    if (m_table->currentIndex().isValid())
        selected.current = devId(m_table->currentIndex());
    return selected;
}

QString DevicesWindow::devId(const QModelIndex &index) const
{
    return m_model->devId(m_filter->mapToSource(index).row());
}

QModelIndex DevicesWindow::indexOf(const QString &devId) const
{
    const int row = m_model->rowOf(devId);
    return row < 0 ? QModelIndex() : m_filter->mapFromSource(m_model->index(row, 0));
}

void DevicesWindow::select(const Selected &selected)
{
    QVector<int> rows;
    for (const QString &devId : selected.devIds)
        if (const QModelIndex index = indexOf(devId); index.isValid())
            rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QItemSelection ranges;
    for (int i = 0, first = 0; i < rows.size(); ++i)
        if (i + 1 == rows.size() || rows.at(i + 1) != rows.at(i) + 1) {
            ranges.select(m_filter->index(rows.at(first), 0), m_filter->index(rows.at(i), 0));
            first = i + 1;
        }
    QItemSelectionModel *selection = m_table->selectionModel();
    const QModelIndex current = indexOf(selected.current);
    selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selection->select(ranges, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (current.isValid())
        m_table->scrollTo(current);
    else
        m_table->scrollToTop();
}

void DevicesWindow::connectAgain()
{
    const auto &store = orda_data::DevsMgrData::instance(); // of devices that are not offered, too
    QStringList devIds;
    const Selected selected = this->selected();
    for (const QString &devId : selected.devIds)
        if (!vms_sdk::isOnlineStatus(store.getDevStatus(devId)))
            devIds.append(devId);
    m_session->connectDevicesAgain(devIds);
    m_note->tell(devIds.isEmpty() ? tr("None of the selected devices is off line.")
                                  : tr("%Ln device(s) are tried again now.", nullptr, devIds.size()));
}

void DevicesWindow::tickThese()
{
    auto *dialog = new TickTheseDialog(m_form, m_states, this);
    connect(dialog, &TickTheseDialog::signalTick, m_note, [this](const QStringList &devIds) { m_note->tick(devIds); });
    dialog->open();
}

} // namespace orda_client
