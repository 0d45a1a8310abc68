#include "client/runs/RunQuestion.h"

#include <vms_client_sdk/ForeignText.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace orda_client {

void askBeforeRun(QWidget *parent, const QString &title, const QString &question, const QStringList &lines,
                  const QString &action, const std::function<void()> &accepted)
{
    // All of it is the box's text: only of that it can be said that it is no HTML.
    const QString text = (QStringList(question) + lines).join(QLatin1Char('\n'));
    auto *box = new QMessageBox(QMessageBox::Question, title, vms_sdk::displayText(text, QStringLiteral("\n")),
                                QMessageBox::NoButton, parent);
    box->setObjectName(QStringLiteral("runQuestion"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QPushButton *write = box->addButton(action, QMessageBox::AcceptRole);
    write->setObjectName(QStringLiteral("write"));
    QPushButton *cancel = box->addButton(QMessageBox::Cancel);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(write, &QPushButton::clicked, parent, accepted);
    // The second click of a double click on the window's button may land here.
    write->setEnabled(false);
    QTimer::singleShot(QApplication::doubleClickInterval(), write, [write] { write->setEnabled(true); });
    box->open();
}

} // namespace orda_client
