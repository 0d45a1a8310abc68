#include "client/app/AboutDialog.h"

#include <orda_base/ReturnPressesButton.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace orda_client {

namespace {

constexpr int margin = 24;
constexpr int textWidth = 420;
constexpr int iconSize = 64;

} // namespace

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("About Batch Configuration"));
    auto *name = new QLabel(tr("Batch Configuration %1").arg(QCoreApplication::applicationVersion()).trimmed());
    name->setProperty("dialog_caption", true);
    auto *text = new QLabel(tr("Configures many cameras and recorders at once.") + QStringLiteral("\n\n")
                            + tr("Free under the MIT licence.") + QLatin1Char('\n')
                            + tr("Made with Qt %1, wslay, RapidJSON, libcsv and SQLite, which have licences of their "
                                 "own.")
                                  .arg(QLatin1String(qVersion())));
    text->setWordWrap(true);
    text->setMinimumWidth(textWidth);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *close = new QPushButton(tr("&Close"));
    close->setProperty("common_bt_style1", true);
    close->setAutoDefault(false);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto *texts = new QVBoxLayout;
    texts->addWidget(name);
    texts->addWidget(text);
    auto *top = new QHBoxLayout;
    top->setSpacing(margin);
    const QIcon icon = QApplication::windowIcon(); // of the desktop's theme, where the program is installed
    if (!icon.isNull()) {
        auto *picture = new QLabel;
        picture->setPixmap(icon.pixmap(iconSize));
        top->addWidget(picture, 0, Qt::AlignTop);
    }
    top->addLayout(texts);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addLayout(top);
    layout->addLayout(row);
    new orda_base::ReturnPressesButton(this);
}

} // namespace orda_client
