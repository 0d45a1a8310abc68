#include "client/preview/ReadingBar.h"

#include "journal/JournalTransport.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// A table of 10,000 devices takes tens of milliseconds to sort: most of the time is left to the devices' answers.
constexpr auto freshInterval = 400ms;

} // namespace

ReadingBar::ReadingBar(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel)
    , m_progress(new QProgressBar)
    , m_stop(new QPushButton(tr("&Stop", "reading")))
{
    m_progress->setObjectName(QStringLiteral("readingProgress"));
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Devices that were read"));
    m_stop->setObjectName(QStringLiteral("stopReading"));
    m_stop->setProperty("common_bt_style2", true);
    m_stop->setToolTip(tr("Does not wait for the devices that have not answered yet. Nothing was written to any."));
    connect(m_stop, &QPushButton::clicked, this, &ReadingBar::stop);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_progress, 1);
    layout->addWidget(m_stop);
    m_freshTimer.setInterval(freshInterval);
    connect(&m_freshTimer, &QTimer::timeout, this, &ReadingBar::showProgress);
    hide();
}

void ReadingBar::start(orda_journal::JournalTransport *journal, const orda_engine::Selection &selection)
{
    forget();
    m_read = m_shown = 0;
    m_progress->setRange(0, selection.devIds.size());
    showCount();
    m_job = new orda_engine::ReadJob(journal, selection, this);
    connect(m_job, &orda_engine::ReadJob::signalRead, this, [this](const orda_engine::DeviceReading &reading) {
        ++m_read;
        emit signalRead(reading);
    });
    connect(m_job, &orda_engine::ReadJob::signalFinished, this, [this](const QString &error) {
        forget();
        emit signalFinished(error);
    });
    m_job->start();
    m_freshTimer.start();
    show();
}

void ReadingBar::stop()
{
    if (m_job)
        m_job->cancel();
}

void ReadingBar::forget()
{
    m_freshTimer.stop();
    hide();
    if (!m_job)
        return;
    disconnect(m_job, nullptr, this, nullptr);
    m_job->cancel(); // gives the turn back now
    m_job->deleteLater();
    m_job = nullptr;
}

void ReadingBar::showProgress()
{
    if (m_shown == m_read)
        return;
    m_shown = m_read;
    showCount();
    emit signalFresh();
}

void ReadingBar::showCount()
{
    const QLocale locale;
    m_progress->setValue(m_read);
    m_text->setText(
        tr("Reading devices: %1 of %2").arg(locale.toString(m_read), locale.toString(m_progress->maximum())));
}

} // namespace orda_client
