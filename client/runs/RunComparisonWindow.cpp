#include "client/runs/RunComparisonWindow.h"

#include "client/common/Widgets.h"
#include "client/tables/CsvFile.h"
#include "client/tables/SearchedTable.h"
#include "client/tables/TableView.h"
#include "journal/HistoryReader.h"

#include <vms_client_sdk/ForeignText.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtConcurrentRun>

namespace orda_client {

namespace {

constexpr QSize windowSize(1240, 560);

} // namespace

void RunComparisonModel::setDevices(const QVector<ComparedDevice> &devices)
{
    beginResetModel();
    m_devices = devices;
    endReset();
}

QString RunComparisonModel::stateText(ComparedDevice::State state)
{
    switch (state) {
    case ComparedDevice::OutcomesDiffer:
        return tr("Other outcome");
    case ComparedDevice::ValuesDiffer:
        return tr("Other values");
    case ComparedDevice::OnlyInFirst:
        return tr("Only in the first");
    case ComparedDevice::OnlyInSecond:
        return tr("Only in the second");
    case ComparedDevice::Same:
        return tr("The same");
    }
    return {};
}

int RunComparisonModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_devices.size();
}

QStringList RunComparisonModel::titles() const
{
    return {tr("Comparison"),    tr("Name"),           tr("Serial number"), tr("IP address"),
            tr("First outcome"), tr("Second outcome"), tr("Read before"),   tr("Written")};
}

QString RunComparisonModel::text(int row, int column) const
{
    const ComparedDevice &device = m_devices.at(row);
    const auto outcome = [](const std::optional<orda_journal::DeviceRow> &recorded) {
        return recorded ? RunTexts::outcome(*recorded, false) : QString();
    };
    switch (column) {
    case State:
        return stateText(device.state);
    case Name:
        return device.row().name;
    case SerialNumber:
        return device.row().serialNumber;
    case Ip:
        return device.row().ip;
    case FirstOutcome:
        return outcome(device.first);
    case SecondOutcome:
        return outcome(device.second);
    case Read:
        return device.read;
    default:
        return device.written;
    }
}

TableModel::SortKey RunComparisonModel::sortKey(int row, int column) const
{
    const ComparedDevice &device = m_devices.at(row);
    if (column == Ip)
        return addressKey(device.row().ip);
    return column == State ? SortKey{device.state, device.row().name} : TableModel::sortKey(row, column);
}

bool RunComparisonModel::isEmphasized(int row, int column) const
{
    return column == State && m_devices.at(row).state != ComparedDevice::Same;
}

RunComparisonWindow::RunComparisonWindow(const RunLine &first, const RunLine &second,
                                         const orda_journal::HistoryOptions &options, const RunTexts &texts,
                                         ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("runComparison"), windowSize, settings, parent)
    , m_model(new RunComparisonModel(this))
    , m_table(new SearchedTable(m_model, {19, 17, 17, 16, 0, 0, 36}, QStringLiteral("compared"),
                                tr("Devices of both runs"),
                                tr("Searches names, serial numbers, addresses, outcomes and values")))
{
    m_table->view()->elideAtEnd({RunComparisonModel::Read, RunComparisonModel::Written});
    setWindowTitle(tr("Compare runs: %1").arg(first.family));
    QVector<SearchedTable::Choice> choices{{tr("All devices"), nullptr}};
    for (const auto state : {ComparedDevice::OutcomesDiffer, ComparedDevice::ValuesDiffer, ComparedDevice::OnlyInFirst,
                             ComparedDevice::OnlyInSecond, ComparedDevice::Same})
        choices.append({RunComparisonModel::stateText(state),
                        [this, state](int row) { return m_model->devices().at(row).state == state; }});
    m_table->setChoices(tr("S&how:"), choices);
    m_table->setEmptyText(tr("The runs are being read."));

    const auto runText = [](const RunLine &line) {
        const QStringList parts{RunTexts::time(line.run.began), line.values, RunTexts::counts(line.run)};
        return vms_sdk::displayText(parts.join(QStringLiteral("   ")));
    };
    auto *about =
        new QLabel(tr("First: %1").arg(runText(first)) + QLatin1Char('\n') + tr("Second: %1").arg(runText(second)));
    about->setTextFormat(Qt::PlainText);
    about->setWordWrap(true);
    auto *exported = styledButton(tr("&Export CSV…"), "exportCsv");
    connect(exported, &QPushButton::clicked, this,
            [this] { CsvFile::saveAs(this, *m_table->filter(), QStringLiteral("runs-compared")); });
    auto *close = styledButton(tr("&Close"), "closeComparison");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(about);
    layout->addWidget(m_table, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(exported);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
    setContent(content);

    const auto showRows = [this, exported] { exported->setEnabled(m_table->filter()->rowCount() > 0); };
    connect(m_table, &SearchedTable::signalShownChanged, this, showRows);
    showRows();
    connect(&m_worker, &QFutureWatcherBase::finished, this, [this] {
        const Result result = m_worker.result();
        m_table->setEmptyText(result.error);
        m_model->setDevices(result.devices);
    });
    m_worker.setFuture(QtConcurrent::run([options, texts, firstId = first.run.id, secondId = second.run.id] {
        return compare(options, texts, firstId, secondId);
    }));
}

RunComparisonWindow::Result RunComparisonWindow::compare(const orda_journal::HistoryOptions &options,
                                                         const RunTexts &texts, const QString &firstId,
                                                         const QString &secondId)
{
    orda_journal::HistoryReader reader(options);
    const auto first = reader.run(firstId);
    const auto second = first ? reader.run(secondId) : std::nullopt;
    if (!first || !second)
        return {{}, reader.error().isEmpty() ? tr("The history does not have both runs any more.") : reader.error()};
    const ParameterTexts *parameters = texts.parameters(first->run.family);
    return {parameters ? compareRuns(*first, *second, *parameters) : QVector<ComparedDevice>(), {}};
}

} // namespace orda_client
