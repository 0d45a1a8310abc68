#include "client/common/ToolWindow.h"

#include "client/common/OpeningSize.h"
#include "client/settings/ClientSettings.h"

#include <orda_base/ReturnPressesButton.h>
#include <orda_base/SearchBox.h>

#include <QShortcut>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int margin = 12;

} // namespace

void ToolWindow::bringToFront(QWidget *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

ToolWindow::ToolWindow(const QString &name, const QSize &wanted, ClientSettings *settings, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    if (!settings->restoreGeometry(this))
        resize(openingSize(this, wanted));
    auto *escape = new QShortcut(QKeySequence::Cancel, this);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
    new orda_base::ReturnPressesButton(this); // as in the form
}

ToolWindow::~ToolWindow()
{
    m_settings->keepGeometry(this);
}

void ToolWindow::setContent(QWidget *content)
{
    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content);
    setCentralWidget(central);
    if (auto *search = content->findChild<orda_base::SearchBox *>()) {
        auto *find = new QShortcut(QKeySequence::Find, this);
        connect(find, &QShortcut::activated, search, [search] { search->setFocus(Qt::ShortcutFocusReason); });
    }
}

} // namespace orda_client
