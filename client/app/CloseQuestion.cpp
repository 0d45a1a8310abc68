#include "client/app/CloseQuestion.h"

#include "client/progress/RunProgress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

constexpr int margin = 24;
constexpr auto followInterval = 200ms;

} // namespace

CloseQuestion::CloseQuestion(const RunProgress *progress, QWidget *parent)
    : QDialog(parent)
    , m_progress(progress)
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("closeQuestion"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("A run is going on"));
    m_count->setProperty("dialog_caption", true);
    auto *consequence = new QLabel(
        tr("Closing ends the run. Devices that have not answered may have been configured all the same."), this);
    auto *close = new QPushButton(tr("Close anyway"), this);
    close->setProperty("common_bt_style2", true);
    close->setAutoDefault(false);
    auto *wait = new QPushButton(tr("Keep waiting"), this);
    wait->setProperty("common_bt_style1", true);
    wait->setDefault(true); // so that Return pressed by accident does not end the run
    wait->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(wait, &QPushButton::clicked, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(close);
    row->addWidget(wait);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    layout->addWidget(m_count);
    layout->addWidget(consequence);
    layout->addSpacing(margin / 2);
    layout->addLayout(row);

    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &CloseQuestion::follow);
    timer->start(followInterval);
    follow();
}

void CloseQuestion::follow()
{
    if (!m_progress || !m_progress->isGoingOn()) {
        reject(); // the run is over, and its result is shown
        return;
    }
    m_count->setText(
        tr("%1 of %n device(s) have not answered", nullptr, m_progress->devices()).arg(m_progress->left()));
    setAccessibleDescription(m_count->text());
}

} // namespace orda_client
