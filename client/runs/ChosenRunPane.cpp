#include "client/runs/ChosenRunPane.h"

#include "client/runs/RunDeviceModel.h"
#include "client/tables/CsvFile.h"
#include "client/tables/GroupList.h"
#include "client/tables/SearchedTable.h"
#include "client/tables/TableView.h"

#include <vms_client_sdk/ForeignText.h>

#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace orda_client {

using orda_journal::Outcome;

namespace {

constexpr int groupsWidth = 290;
constexpr int devicesWidth = 1000;

} // namespace

ChosenRunPane::ChosenRunPane(QWidget *parent)
    : QWidget(parent)
    , m_model(new RunDeviceModel(this))
    , m_summary(new QLabel)
    , m_groups(new GroupList(tr("Failures by message")))
    , m_devices(new SearchedTable(m_model, {16, 18, 15, 13, 18}, QStringLiteral("runDevices"), tr("Devices of the run"),
                                  tr("Searches names, serial numbers, addresses, messages and values")))
{
    m_devices->view()->elideAtEnd({RunDeviceModel::Changes});
    m_summary->setObjectName(QStringLiteral("runSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    QVector<SearchedTable::Choice> choices{{tr("All devices"), nullptr},
                                           {tr("Not done"), [this](int row) { return m_model->isFailed(row); }}};
    for (const Outcome outcome : {Outcome::Done, Outcome::Unchanged, Outcome::Failed, Outcome::Unknown,
                                  Outcome::Stopped, Outcome::PartlyWritten, Outcome::NotReached, Outcome::Differs})
        choices.append(
            {RunTexts::outcome(outcome), [this, outcome](int row) { return m_model->device(row).outcome == outcome; }});
    m_devices->setChoices(tr("S&how:"), choices);
    m_devices->setEmptyText(tr("Choose a run above."));

    auto *splitter = new QSplitter;
    splitter->addWidget(buildGroups());
    splitter->addWidget(m_devices);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({groupsWidth, devicesWidth});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(splitter, 1);
    connect(m_groups, &GroupList::signalGroupChosen, this, &ChosenRunPane::showGroup);
    connect(m_devices, &SearchedTable::signalShownChanged, this, &ChosenRunPane::signalChanged);
    connect(m_devices, &SearchedTable::signalSelectionChanged, this, &ChosenRunPane::signalChanged);
}

QWidget *ChosenRunPane::buildGroups()
{
    m_groups->setObjectName(QStringLiteral("groups"));
    auto *caption = new QLabel(tr("Failures by &message"));
    caption->setBuddy(m_groups);
    auto *groups = new QWidget;
    auto *layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(m_groups);
    return groups;
}

void ChosenRunPane::setRun(const ChosenRunPtr &run)
{
    m_devices->setAccepts(nullptr); // its rows are those of the old run
    m_model->setRun(run);
    m_groups->setGroups(tr("All devices"), m_model->rowCount(), m_model->failures());
    m_groups->setEnabled(run != nullptr);
    m_summary->setText(summary());
    showGroup();
}

const ChosenRunPtr &ChosenRunPane::run() const
{
    return m_model->run();
}

QString ChosenRunPane::summary() const
{
    if (!run())
        return {};
    const RunLine &line = run()->line;
    QStringList parts{RunTexts::time(line.run.began), line.family, line.kind, RunTexts::counts(line.run)};
    if (!line.values.isEmpty())
        parts.append(line.values); // last, because there may be many
    return vms_sdk::displayText(parts.join(QStringLiteral("   ")));
}

void ChosenRunPane::showGroup()
{
    const QString group = m_groups->group();
    if (group.isEmpty())
        m_devices->setAccepts(nullptr);
    else
        m_devices->setAccepts(
            [this, group](int row) { return m_model->isFailed(row) && m_model->groupOf(row) == group; });
}

QStringList ChosenRunPane::devicesIn(const QVector<int> &rows) const
{
    QStringList devIds;
    for (const int row : rows)
        devIds.append(m_model->device(row).devId);
    return devIds;
}

QStringList ChosenRunPane::selectedDevices() const
{
    return devicesIn(m_devices->selectedRows());
}

QStringList ChosenRunPane::meantDevices() const
{
    const QVector<int> selected = m_devices->selectedRows();
    if (!selected.isEmpty())
        return devicesIn(selected);
    return m_groups->group().isEmpty() ? QStringList() : devicesIn(m_devices->filter()->shownRows());
}

bool ChosenRunPane::isEmpty() const
{
    return m_devices->filter()->rowCount() == 0;
}

void ChosenRunPane::exportCsv()
{
    CsvFile::saveAs(this, *m_devices->filter(), QStringLiteral("run"));
}

} // namespace orda_client
