#include "client/find/FindWindow.h"

#include "client/common/Notice.h"
#include "client/common/Question.h"
#include "client/common/Widgets.h"
#include "client/find/FoundModel.h"
#include "client/session/ClientSession.h"
#include "client/tables/SearchedTable.h"
#include "client/tables/TableView.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace orda_client {

using namespace std::chrono_literals;
using vms_sdk::DevInfo;
using vms_sdk::FoundCamera;
using vms_sdk::OnvifDiscovery;

namespace {

constexpr QSize windowSize(1320, 680); // or the screen's
constexpr auto searchTime = 5s; // cameras answer within a second or two
constexpr auto showEvery = 200ms; // so that a thousand answers in a second do not lay the table out a thousand times
constexpr int linesAsked = 10; // of the question; who wants to see more of them has the table
constexpr int longestText = 256; // of an account or a group

} // namespace

FindWindow::FindWindow(ClientSession *session, ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("findWindow"), windowSize, settings, parent)
    , m_session(session)
    , m_discovery(new OnvifDiscovery(this))
    , m_model(new FoundModel(this))
    , m_notice(new Notice(tr("Cameras that this is about")))
{
    setWindowTitle(tr("Find cameras"));
    m_takePending.setSingleShot(true);
    m_takePending.setInterval(showEvery);
    buildTable();
    m_counts = plainLabel("counts");
    m_certificates = plainLabel("certificates");
    m_certificates->setText(
        tr("An https camera whose certificate no authority has signed is refused at first (\"certificate not "
           "accepted\"), until its fingerprint stands in the inventory."));

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_counts);
    layout->addWidget(buildAccount());
    layout->addWidget(m_certificates);
    layout->addWidget(m_notice);
    layout->addWidget(buildButtons());
    setContent(content);
    follow();
    takeInventory();
    m_search->setFocus();
}

void FindWindow::buildTable()
{
    m_table = new SearchedTable(
        m_model, {26, 22, 44, 16, 20, 20}, QStringLiteral("found"), tr("Cameras"),
        tr("Searches all columns (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    m_table->view()->sortByColumn(-1, Qt::AscendingOrder); // as they come, so that no row moves while they do
    m_table->view()->elideAtEnd({FoundModel::Name, FoundModel::Address});
    m_table->view()->installEventFilter(this);
    m_interface = new QComboBox;
    m_interface->setObjectName(QStringLiteral("networkInterface"));
    m_interface->addItem(tr("All", "network interfaces"));
    m_interface->addItems(OnvifDiscovery::interfaces());
    m_interface->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *caption = new QLabel(tr("&Network interface"));
    caption->setBuddy(m_interface);
    m_search = styledButton(tr("&Find"), "startSearch");
    m_search->setToolTip(tr("Asks all ONVIF cameras of the local network to answer; nothing is sent before"));
    m_table->addBefore(caption);
    m_table->addBefore(m_interface);
    m_table->addBefore(m_search);
}

QLineEdit *FindWindow::addField(QWidget *row, const QString &caption, const char *name)
{
    auto *field = new QLineEdit;
    field->setObjectName(QLatin1String(name));
    field->setMaxLength(longestText);
    auto *label = new QLabel(caption);
    label->setBuddy(field);
    row->layout()->addWidget(label);
    row->layout()->addWidget(field);
    return field;
}

QWidget *FindWindow::buildAccount()
{
    auto *account = new QWidget;
    auto *row = new QHBoxLayout(account);
    row->setContentsMargins(0, 0, 0, 0);
    m_userName = addField(account, tr("&User name"), "userName");
    m_password = addField(account, tr("&Password"), "password");
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setToolTip(tr("Goes into the inventory file, which only you can read, and nowhere else"));
    m_group = addField(account, tr("&Group"), "group");
    m_group->setToolTip(tr("To choose devices by, such as a building; may be empty"));
    return account;
}

QWidget *FindWindow::buildButtons()
{
    m_add = styledButton(tr("&Add to inventory"), "addFound", "common_bt_style1");
    m_add->setToolTip(tr("Puts the ticked cameras that are shown into the inventory, with this account"));
    m_tickNew = styledButton(tr("&Tick new ones"), "tickNew");
    m_tickNew->setToolTip(tr("Ticks what is shown and not in the inventory yet, but for cameras that say they are "
                             "elsewhere than where their answer came from"));
    auto *close = styledButton(tr("&Close"), "close");
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_add);
    row->addWidget(m_tickNew);
    row->addStretch();
    row->addWidget(close);
    return buttons;
}

void FindWindow::follow()
{
    connect(m_search, &QPushButton::clicked, this, &FindWindow::startOrStop);
    connect(m_discovery, &OnvifDiscovery::found, this, [this](const FoundCamera &camera) {
        m_pending.append(camera);
        if (!m_takePending.isActive())
            m_takePending.start();
    });
    connect(m_discovery, &OnvifDiscovery::finished, this, &FindWindow::showEnd);
    connect(&m_takePending, &QTimer::timeout, this, &FindWindow::takePending);
    connect(m_model, &FoundModel::signalTicksChanged, this, &FindWindow::updateTexts);
    connect(m_table, &SearchedTable::signalShownChanged, this, &FindWindow::updateTexts);
    connect(m_tickNew, &QPushButton::clicked, this, &FindWindow::tickNew);
    connect(m_add, &QPushButton::clicked, this, &FindWindow::askToAdd);
    connect(m_session, &ClientSession::signalSourceChanged, this, &FindWindow::takeInventory);
    const auto &store = orda_data::DataSignals::instance();
    connect(&store, &orda_data::DataSignals::signalUpdateDevs, this, &FindWindow::takeInventory);
    connect(&store, &orda_data::DataSignals::signalDeleteDevs, this, &FindWindow::takeInventory);
}

void FindWindow::startOrStop()
{
    m_notice->clear();
    if (m_isSearching) {
        m_discovery->stop();
        return;
    }
    m_pending.clear();
    m_model->clear();
    const QString interface = m_interface->currentIndex() > 0 ? m_interface->currentText() : QString();
    const QString error = m_discovery->start(interface, searchTime);
    m_isSearching = error.isEmpty();
    m_hasSearched = m_hasSearched || m_isSearching;
    m_notice->say(error);
    updateTexts();
}

void FindWindow::showEnd()
{
    m_isSearching = false;
    takePending();
}

void FindWindow::takePending()
{
    m_takePending.stop();
    m_model->add(m_pending);
    m_pending.clear();
    updateTexts();
}

void FindWindow::takeInventory()
{
    QSet<QString> known;
    // Devices of the demo are in no inventory.
    const bool isInventory = !m_session->source().inventoryFile.isEmpty();
    const QList<DevInfo> devices =
        isInventory ? orda_data::DevsMgrData::instance().getAllDevs(false) : QList<DevInfo>();
    for (const DevInfo &device : devices) {
        QUrl address(device.url);
        if (device.url.isEmpty()) {
            address.setScheme(QStringLiteral("http")); // only host and port are looked at
            address.setHost(device.ip);
            address.setPort(device.port);
        }
        known.insert(vms_sdk::hostAndPort(address));
    }
    m_model->setKnown(known);
}

QVector<int> FindWindow::shownRows() const
{
    return m_table->filter()->shownRows();
}

QVector<int> FindWindow::tickedRows() const
{
    QVector<int> rows = shownRows();
    rows.erase(std::remove_if(rows.begin(), rows.end(), [this](int row) { return !m_model->isTicked(row); }),
               rows.end());
    return rows;
}

void FindWindow::updateTexts()
{
    m_search->setText(m_isSearching ? tr("&Stop") : tr("&Find"));
    m_interface->setEnabled(!m_isSearching);
    if (m_isSearching)
        m_table->setEmptyText(tr("Searching…"));
    else if (m_hasSearched)
        m_table->setEmptyText(tr("No camera has answered. Cameras answer only within the same network, and only while "
                                 "their discovery (WS-Discovery) is switched on."));
    else
        m_table->setEmptyText(tr("\"Find\" asks all ONVIF cameras of the local network to answer."));
    const int shownTicks = tickedRows().size();
    int allTicks = 0;
    bool isAnyTls = false;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        allTicks += m_model->isTicked(row) ? 1 : 0;
        isAnyTls = isAnyTls || m_model->camera(row).addresses.constFirst().scheme() == QLatin1String("https");
    }
    QStringList parts{tr("%Ln camera(s) found", nullptr, m_model->rowCount()), tr("%Ln ticked", "cameras", shownTicks)};
    if (m_isSearching)
        parts.prepend(tr("Searching…"));
    if (allTicks > shownTicks)
        parts.append(tr("%Ln ticked but hidden by the search, and left out", "cameras", allTicks - shownTicks));
    m_counts->setText(m_hasSearched || m_model->rowCount() > 0 ? parts.join(QStringLiteral(", ")) : QString());
    m_certificates->setVisible(isAnyTls);
    m_add->setEnabled(shownTicks > 0);
    m_tickNew->setEnabled(m_model->rowCount() > 0);
}

void FindWindow::tickNew()
{
    QVector<int> rows = shownRows();
    rows.erase(std::remove_if(rows.begin(), rows.end(), [this](int row) { return !m_model->camera(row).isAtSender(); }),
               rows.end());
    m_model->setTicked(rows, true);
}

void FindWindow::tickSelected()
{
    QVector<int> rows = m_table->selectedRows();
    rows.erase(std::remove_if(rows.begin(), rows.end(), [this](int row) { return m_model->isKnown(row); }), rows.end());
    const bool areTicked = std::all_of(rows.cbegin(), rows.cend(), [this](int row) { return m_model->isTicked(row); });
    m_model->setTicked(rows, !areTicked);
}

bool FindWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Space)
        return ToolWindow::eventFilter(watched, event);
    tickSelected();
    return true;
}

QStringList FindWindow::atSameAddress(const QVector<int> &rows) const
{
    QHash<QString, int> times;
    for (const int row : rows)
        ++times[vms_sdk::hostAndPort(m_model->camera(row).addresses.constFirst())];
    QStringList lines;
    for (const int row : rows) {
        const FoundCamera &camera = m_model->camera(row);
        const QUrl &address = camera.addresses.constFirst();
        if (times.value(vms_sdk::hostAndPort(address)) > 1)
            lines.append(
                tr("%1 from %2: %3")
                    .arg(vms_sdk::displayText(camera.name), camera.sender, address.toString(QUrl::FullyEncoded)));
    }
    return lines;
}

QList<DevInfo> FindWindow::devicesOf(const QVector<int> &rows) const
{
    QSet<QString> ids;
    const QList<DevInfo> others = orda_data::DevsMgrData::instance().getAllDevs(false);
    for (const DevInfo &device : others)
        ids.insert(device.id);
    QList<DevInfo> devices;
    for (const int row : rows) {
        DevInfo device = vms_sdk::toDevInfo(m_model->camera(row), &ids);
        device.userName = m_userName->text();
        device.password = m_password->text();
        device.group = m_group->text();
        devices.append(device);
    }
    return devices;
}

QStringList FindWindow::linesAbout(const QVector<int> &rows) const
{
    QStringList elsewhere, others;
    for (const int row : rows) {
        const FoundCamera &camera = m_model->camera(row);
        const QString address = camera.addresses.constFirst().toString(QUrl::FullyEncoded);
        const QString name = vms_sdk::displayText(camera.name);
        if (camera.isAtSender())
            others.append(name.isEmpty() ? address : tr("%1: %2", "a name and an address").arg(name, address));
        else
            elsewhere.append(tr("%1 answered and says that it is at %2").arg(camera.sender, address));
    }
    const auto beginningOf = [](const QStringList &all) {
        const int left = all.size() - linesAsked;
        return left > 0 ? QStringList(all.mid(0, linesAsked)) << tr("and %Ln more", "cameras", left) : all;
    };
    QStringList lines;
    if (!elsewhere.isEmpty()) {
        lines.append(tr("Whoever is at these addresses will be signed on to:"));
        lines += beginningOf(elsewhere);
        lines.append(QString());
    }
    if (!others.isEmpty())
        lines += beginningOf(others) << QString();
    if (m_userName->text().isEmpty())
        lines.append(tr("Without a user name hardly any camera lets itself be configured."));
    const QString file = m_session->source().inventoryFile;
    lines.append(file.isEmpty() ? tr("You will be asked where to save a new inventory.")
                                : tr("They are added to %1.").arg(QFileInfo(file).fileName()));
    return lines;
}

void FindWindow::askToAdd()
{
    const QVector<int> rows = tickedRows();
    const QStringList same = atSameAddress(rows);
    m_notice->clear();
    if (!same.isEmpty()) {
        m_notice->say(tr("Nothing was added: these say that they are at the same address. Tick one of them only."),
                      same);
        return;
    }
    const QList<DevInfo> devices = devicesOf(rows);
    const Question question{"addQuestion", tr("Add to inventory"),
                            tr("Add %Ln camera(s) to the inventory?", nullptr, devices.size()), linesAbout(rows),
                            tr("Add")};
    question.ask(this, [this, devices] { emit signalAdd(devices); });
}

} // namespace orda_client
