#include "client/common/Question.h"

#include "client/common/Widgets.h"

#include <orda_base/ReturnPressesButton.h>
#include <vms_client_sdk/ForeignText.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int margin = 12;
constexpr int leastTextWidth = 400;
constexpr int mostTextWidth = 640;

} // namespace

void Question::ask(QWidget *parent, const std::function<void()> &accepted) const
{
    auto *box = new QMessageBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setContentsMargins(0, margin, margin, margin); // its layout leaves more room on the left
    box->setWindowTitle(title);
    box->setText(vms_sdk::displayText(text));
    box->setInformativeText(vms_sdk::displayText(lines.join(QLatin1Char('\n')), QStringLiteral("\n")));
    const auto labels = box->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->setTextFormat(Qt::PlainText); // of the informative text the box itself cannot be told so
        if (label->text() == box->text())
            label->setProperty("dialog_caption", true);
        label->setWordWrap(true);
        label->ensurePolished(); // with the font that it will have
        const int lineWidth = label->fontMetrics().size(0, label->text()).width() + 1;
        label->setMinimumWidth(std::clamp(lineWidth, leastTextWidth, mostTextWidth));
    }
    QPushButton *confirm = styledButton(action, "confirm", "common_bt_style1");
    QPushButton *cancel = styledButton(QCoreApplication::translate("orda_client::Question", "Cancel"), "cancel");
    for (QPushButton *button : {confirm, cancel}) {
        new orda_base::ReturnPressesButton(button); // a key that is still held from before is no answer
        box->addButton(button, QMessageBox::ActionRole); // one role for both, or the desktop would choose their order
    }
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(confirm, &QPushButton::clicked, parent, accepted);
    // The second click of a double click on the window's button may land here.
    confirm->setEnabled(false);
    QTimer::singleShot(QApplication::doubleClickInterval(), confirm, [confirm] { confirm->setEnabled(true); });
    box->open();
}

} // namespace orda_client
