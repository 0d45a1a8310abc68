#include "client/devices/GroupsMenu.h"

#include "client/common/Question.h"
#include "journal/HistoryRows.h"

#include <orda_base/SortOrder.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QInputDialog>
#include <QLocale>
#include <QMap>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int longestName = 100; // of a selection

/// A name of other people's as a text of a menu.
QString menuText(const QString &name)
{
    return vms_sdk::displayText(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QStringList sorted(QStringList names)
{
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return orda_base::nameCollator().compare(a, b) < 0; });
    return names;
}

} // namespace

GroupsMenu::GroupsMenu(ClientSettings *settings, QWidget *parent)
    : QMenu(parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("groupsMenu"));
    setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }")); // there may be hundreds of groups
    connect(this, &QMenu::aboutToShow, this, &GroupsMenu::fill);
}

void GroupsMenu::fill()
{
    clear();
    delete findChild<QMenu *>(QStringLiteral("forgetMenu"));
    addGroups();
    addSelections();
    addSeparator();
    addAction(tr("Save the &ticks of the list as…"), this, &GroupsMenu::signalSaveTicks);
    addAction(tr("Save the selected &rows as…"), this, &GroupsMenu::signalSaveRows);
}

// Sections have no texts in the theme.
void GroupsMenu::addHeading(const QString &text)
{
    addAction(text)->setEnabled(false);
}

void GroupsMenu::addGroups()
{
    QMap<QString, QStringList> groups;
    const QList<vms_sdk::DevInfo> devices = orda_data::DevsMgrData::instance().getAllDevs(false);
    for (const vms_sdk::DevInfo &device : devices)
        if (!device.group.isEmpty())
            groups[device.group].append(device.id);
    addHeading(tr("Tick a group of the inventory:"));
    const QStringList names = sorted(groups.keys());
    for (const QString &name : names) {
        const QStringList devIds = groups.value(name);
        addAction(
            tr("%1 (%2)", "a group, how many devices it has").arg(menuText(name), QLocale().toString(devIds.size())),
            this, [this, devIds] { emit signalChosen(devIds, {}); });
    }
    if (groups.isEmpty())
        addHeading(tr("The inventory has no groups."));
}

void GroupsMenu::addSelections()
{
    addSeparator();
    addHeading(tr("Tick a saved selection:"));
    const auto selections = m_settings->selections();
    const QStringList names = sorted(selections.keys());
    for (const QString &name : names) {
        const QVector<ClientSettings::SavedDevice> devices = selections.value(name);
        addAction(
            tr("%1 (%2)", "a group, how many devices it has").arg(menuText(name), QLocale().toString(devices.size())),
            this, [this, devices] { choose(devices); });
    }
    if (names.isEmpty()) {
        addHeading(tr("Nothing is saved yet."));
        return;
    }
    QMenu *forget = addMenu(tr("&Forget a saved selection"));
    forget->setObjectName(QStringLiteral("forgetMenu"));
    for (const QString &name : names)
        forget->addAction(menuText(name), this, [this, name] { askBeforeForgetting(name); });
}

/// Another site's inventory may count its devices alike.
void GroupsMenu::choose(const QVector<ClientSettings::SavedDevice> &devices)
{
    const auto &store = orda_data::DevsMgrData::instance();
    QStringList devIds, replaced;
    for (const ClientSettings::SavedDevice &device : devices) {
        orda_journal::DeviceRow saved;
        saved.serialNumber = device.serialNumber;
        (saved.isReplacedBy(store.getDevInfoById(device.devId).serialNumber) ? replaced : devIds).append(device.devId);
    }
    emit signalChosen(devIds, replaced);
}

void GroupsMenu::save(const QStringList &devIds)
{
    if (devIds.isEmpty()) {
        emit signalTold(tr("There is nothing to save: no device is ticked or selected."));
        return;
    }
    auto *dialog = new QInputDialog(parentWidget());
    dialog->setObjectName(QStringLiteral("selectionName"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Save selection"));
    dialog->setLabelText(tr("&Name for these %Ln device(s):", nullptr, devIds.size()));
    dialog->setOkButtonText(tr("Save"));
    dialog->setCancelButtonText(tr("Cancel"));
    connect(dialog, &QInputDialog::textValueSelected, this, [this, devIds](const QString &text) {
        const QString name = text.trimmed().left(longestName);
        if (name.isEmpty())
            return;
        if (m_settings->selections().contains(name)) {
            emit signalTold(
                tr("Not saved: there is a selection \"%1\" already. Forget it first, or take another name.").arg(name));
            return;
        }
        QVector<ClientSettings::SavedDevice> devices;
        for (const QString &devId : devIds)
            devices.append({devId, orda_data::DevsMgrData::instance().getDevInfoById(devId).serialNumber});
        m_settings->setSelection(name, devices);
        const QStringList told{tr("Saved as \"%1\": %Ln device(s).", nullptr, devIds.size()).arg(name),
                               m_settings->writeProblem()};
        emit signalTold(told.join(QLatin1Char(' ')).trimmed());
    });
    dialog->open();
}

void GroupsMenu::askBeforeForgetting(const QString &name)
{
    const Question question{
        "forgetQuestion",
        tr("Forget selection"),
        tr("Forget the saved selection \"%1\"? Its devices stay as they are.").arg(vms_sdk::displayText(name)),
        {},
        tr("&Forget")};
    question.ask(parentWidget(), [this, name] {
        m_settings->setSelection(name, {});
        emit signalTold(tr("Forgot \"%1\".").arg(name));
    });
}

} // namespace orda_client
