#include "client/app/InventoryOpener.h"

#include "client/form/FormTicks.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/JournalTransport.h"

#include <orda_worker/SystemAssistant.h>

#include <QFileDialog>
#include <QFileInfo>

namespace orda_client {

InventoryOpener::InventoryOpener(QWidget *form, ClientSession *session, ClientSettings *settings, QWidget *window)
    : QObject(window)
    , m_form(form)
    , m_session(session)
    , m_settings(settings)
    , m_window(window)
{
    connect(session, &ClientSession::signalSourceChanged, this, [this] {
        const QString file = m_session->source().inventoryFile;
        if (file.isEmpty())
            return;
        m_settings->addRecentInventory(file);
        emit signalRecentChanged();
    });
}

void InventoryOpener::ask()
{
    // Beside the one that is open, else where the last one was.
    const QStringList recent = m_settings->recentInventories();
    const QString directory = recent.isEmpty() ? QString() : QFileInfo(recent.constFirst()).path();
    auto *dialog =
        new QFileDialog(m_window, tr("Open inventory"), directory, tr("Inventories (*.json);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &InventoryOpener::open);
    dialog->open();
}

void InventoryOpener::open(const QString &file)
{
    if (isDeclined())
        return;
    const QString error = m_session->openInventory(file);
    if (!error.isEmpty())
        tell(error);
}

void InventoryOpener::openRecent(const QString &file)
{
    if (isDeclined())
        return;
    if (QFileInfo::exists(file)) {
        open(file);
        return;
    }
    m_settings->removeRecentInventory(file);
    emit signalRecentChanged();
    tell(tr("%1 is no longer there. It has been taken off the list of the last inventories.").arg(file));
}

void InventoryOpener::startDemo(int devices)
{
    if (isDeclined())
        return;
    const QString error = m_session->startDemo(devices, {});
    if (!error.isEmpty())
        orda_worker::SystemAssistant::instance().messageAlert(tr("Demo"), error);
}

void InventoryOpener::clearRecent()
{
    const QStringList paths = m_settings->recentInventories();
    for (const QString &path : paths)
        m_settings->removeRecentInventory(path);
    emit signalRecentChanged();
}

bool InventoryOpener::isDeclined() const
{
    if (FormTicks::runOverlay(m_form)) {
        tell(tr("A run is going on over the devices of this inventory. Open another when it has ended."));
        return true;
    }
    const orda_journal::JournalTransport *journal = m_session->journal();
    if (journal && journal->isBusy()) {
        tell(tr("The devices of this inventory are being read or configured. Open another when that has ended."));
        return true;
    }
    return false;
}

void InventoryOpener::tell(const QString &error)
{
    orda_worker::SystemAssistant::instance().messageAlert(tr("Open inventory"), error);
}

} // namespace orda_client
