#include "journal/PageWatch.h"

#include "journal/JournalTransport.h"

#include <QDynamicPropertyChangeEvent>
#include <QUuid>
#include <QVariantMap>

namespace orda_journal {

namespace {

constexpr char runProperty[] = "run";
constexpr char refusedProperty[] = "runRefused";

} // namespace

PageWatch::PageWatch(JournalTransport *journal, QObject *parent)
    : QObject(parent)
    , m_journal(journal)
{
}

PageWatch::~PageWatch()
{
    if (m_runningPage)
        endRun();
}

void PageWatch::watch(QObject *page)
{
    page->installEventFilter(this);
    connect(page, &QObject::destroyed, this, [this](QObject *gone) {
        if (gone == m_runningPage)
            endRun();
    });
}

bool PageWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == runProperty)
        runChanged(watched);
    return QObject::eventFilter(watched, event);
}

void PageWatch::runChanged(QObject *page)
{
    const QVariantMap announced = page->property(runProperty).toMap();
    if (announced.isEmpty()) {
        if (page == m_runningPage)
            endRun();
        return;
    }
    const bool isDeclined = !page->property(refusedProperty).toString().isEmpty(); // by another watcher, which said why
    if (!m_journal || isDeclined)
        return;
    RunStart run;
    run.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    run.family = announced.value(QStringLiteral("family")).toString();
    run.kind = QStringLiteral("apply");
    run.values = announced.value(QStringLiteral("values")).toJsonObject();
    run.devIds = announced.value(QStringLiteral("devIds")).toStringList();
    const QString why = m_journal->beginRun(run, JournalTransport::Owner::Page);
    if (why.isEmpty()) {
        m_runningPage = page;
    } else {
        page->setProperty(refusedProperty, why);
        emit signalDeclined(why);
    }
}

void PageWatch::endRun()
{
    m_runningPage = nullptr;
    if (m_journal)
        m_journal->end();
}

} // namespace orda_journal
