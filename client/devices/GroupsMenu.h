#pragma once

#include "client/settings/ClientSettings.h"

#include <QMenu>
#include <QStringList>

namespace orda_client {

/// The groups of the inventory, and the selections that the user has given names: one click chooses the devices of one.
/// Made anew each time it opens.
class GroupsMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param settings must outlive the menu
    GroupsMenu(ClientSettings *settings, QWidget *parent);

    /// Asks for a name, and keeps these devices under it. A name that is taken is not given to others.
    void save(const QStringList &devIds);

signals:
    /// @param devIds of a saved selection also those that the inventory does not have any more
    /// @param replaced further devices of a saved selection, in whose place the inventory has others now
    void signalChosen(const QStringList &devIds, const QStringList &replaced);
    void signalSaveTicks();
    void signalSaveRows();
    /// What became of a wish, for the user.
    void signalTold(const QString &text);

private:
    void fill();
    void addHeading(const QString &text);
    void addGroups();
    void addSelections();
    void choose(const QVector<ClientSettings::SavedDevice> &devices);
    void askBeforeForgetting(const QString &name);

    ClientSettings *m_settings;
};

} // namespace orda_client
