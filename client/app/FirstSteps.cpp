#include "client/app/FirstSteps.h"

#include "client/common/Widgets.h"
#include "client/settings/ClientSettings.h"

#include <orda_base/ReturnPressesButton.h>
#include <vms_client_sdk/ForeignText.h>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTextDocument>
#include <QVBoxLayout>
#include <QVariant>

namespace orda_client {

namespace {

constexpr int columnWidth = 720;
constexpr int margin = 24;
constexpr int spacing = 12;
constexpr int recentWidth = 560; // of the text; paths may be longer than the window is wide
constexpr int usualDemoDevices = 200;
constexpr int mostDemoDevices = 10000;

QLabel *explanation(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

/// A framed area with a heading. @return its layout, whose parent is the area
QVBoxLayout *card(const QString &heading)
{
    auto *area = new QWidget;
    area->setProperty("page_card", true);
    area->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(margin, margin / 2, margin, margin / 2);
    layout->setSpacing(spacing);
    auto *caption = new QLabel(heading);
    caption->setProperty("dialog_caption", true);
    layout->addWidget(caption);
    return layout;
}

QHBoxLayout *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing);
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    return row;
}

} // namespace

FirstSteps::FirstSteps(const ClientSettings *settings, QWidget *parent)
    : QScrollArea(parent)
    , m_settings(settings)
    , m_open(styledButton(tr("&Open inventory…"), "openInventoryBt", "common_bt_style1"))
    , m_recentCaption(new QLabel(tr("Opened last:")))
    , m_recent(new QVBoxLayout)
    , m_demoDevices(new QSpinBox)
{
    setObjectName(QStringLiteral("firstSteps"));
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *column = new QWidget;
    column->setMaximumWidth(columnWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    auto *welcome = explanation(tr("Which devices are to be configured?"));
    welcome->setProperty("dialog_caption", true);
    layout->addWidget(welcome);
    layout->addWidget(buildInventory());
    layout->addWidget(buildImport());
    layout->addWidget(buildDemo());
    layout->addStretch();

    auto *centred = new QWidget;
    auto *row = new QHBoxLayout(centred);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(column, 1000); // its greatest width leaves the rest to both sides
    row->addStretch(1);
    setWidget(centred);
    new orda_base::ReturnPressesButton(this); // as in the form
    listRecent();
}

QWidget *FirstSteps::buildInventory()
{
    QVBoxLayout *layout = card(tr("Open an inventory"));
    layout->addWidget(explanation(tr("An inventory is a file that lists the devices of a site and how they are "
                                     "reached.")));
    connect(m_open, &QPushButton::clicked, this, &FirstSteps::signalOpen);
    layout->addLayout(rowOf({m_open}));
    layout->addWidget(m_recentCaption);
    m_recent->setSpacing(spacing / 2);
    layout->addLayout(m_recent);
    return layout->parentWidget();
}

QWidget *FirstSteps::buildImport() const
{
    QVBoxLayout *layout = card(tr("Bring cameras in"));
    layout->addWidget(explanation(
        tr("ONVIF cameras of the local network can be searched for and put into an inventory. Others are listed in a "
           "spreadsheet, each on a line of its own, with the columns id, ip and port, and where they are needed name, "
           "serialNumber, userName, password and others, which the manual names. Saved as CSV and imported here, the "
           "table becomes an inventory.")));
    auto *find = styledButton(tr("Find &cameras…"), "findCamerasBt", "common_bt_style2");
    connect(find, &QPushButton::clicked, this, &FirstSteps::signalFind);
    auto *import = styledButton(tr("&Import devices from CSV…"), "importDevicesBt", "common_bt_style2");
    connect(import, &QPushButton::clicked, this, &FirstSteps::signalImport);
    layout->addLayout(rowOf({find, import}));
    return layout->parentWidget();
}

QWidget *FirstSteps::buildDemo()
{
    QVBoxLayout *layout = card(tr("Try it out"));
    layout->addWidget(explanation(tr("The demo brings simulated devices along, which end with it. No real device is "
                                     "written to.")));
    m_demoDevices->setObjectName(QStringLiteral("demoDevices"));
    m_demoDevices->setRange(1, mostDemoDevices);
    m_demoDevices->setValue(usualDemoDevices);
    auto *caption = new QLabel(tr("&Number of devices"));
    caption->setBuddy(m_demoDevices);
    auto *start = styledButton(tr("&Start the demo"), "startDemoBt", "common_bt_style2");
    connect(start, &QPushButton::clicked, this, [this] { emit signalStartDemo(m_demoDevices->value()); });
    layout->addLayout(rowOf({caption, m_demoDevices}));
    layout->addLayout(rowOf({start}));
    return layout->parentWidget();
}

void FirstSteps::listRecent()
{
    while (QLayoutItem *item = m_recent->takeAt(0)) {
        item->widget()->deleteLater(); // it may be the one that was just pressed
        item->widget()->hide();
        delete item;
    }
    const QStringList paths = m_settings->recentInventories();
    m_recentCaption->setVisible(!paths.isEmpty());
    QWidget *before = m_open;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        const QString shown = vms_sdk::displayText(QStringLiteral("%1 – %2").arg(file.fileName(), file.path()));
        auto *entry = styledButton({}, "recentInventory", "recent");
        entry->setStyleSheet(QStringLiteral("text-align: left;"));
        entry->ensurePolished(); // so that the font is the one that will be used
        entry->setText(entry->fontMetrics()
                           .elidedText(shown, Qt::ElideMiddle, recentWidth)
                           .replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setToolTip(Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal));
        connect(entry, &QPushButton::clicked, this, [this, path] { emit signalOpenRecent(path); });
        m_recent->addWidget(entry);
        setTabOrder(before, entry);
        before = entry;
    }
}

} // namespace orda_client
