#include "client/press/PressGuard.h"

#include "client/form/Families.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/press/ValueChecks.h"
#include "client/settings/ClientSettings.h"

#include <families/Families.h>

#include <QEvent>
#include <QTableWidget>
#include <QTimer>
#include <QVariant>

#include <chrono>
#include <utility>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

constexpr char runProperty[] = "run";
constexpr char refusedProperty[] = "runRefused";

PressedRun announcedBy(const QObject *page)
{
    const QVariantMap announced = page->property(runProperty).toMap();
    return {announced.value(QStringLiteral("family")).toString(),
            announced.value(QStringLiteral("values")).toJsonObject(),
            announced.value(QStringLiteral("devIds")).toStringList()};
}

} // namespace

PressGuard::PressGuard(QWidget *form, const ClientSettings *settings, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_settings(settings)
{
    for (const Family &family : families())
        if (auto *page = form->findChild<QWidget *>(family.pageName))
            page->installEventFilter(this);
    connect(FormTicks::listOf(form), &QObject::destroyed, this, &PressGuard::dropQuestion);
}

PressGuard::~PressGuard()
{
    dropQuestion();
}

bool PressGuard::isFormThere() const
{
    return m_form && FormTicks::listOf(m_form);
}

void PressGuard::dropQuestion()
{
    m_toAsk.reset();
    if (m_question) {
        m_question->disconnect(this);
        m_question->hide();
        m_question->deleteLater(); // this may be a call from inside it
        m_question = nullptr;
    }
}

void PressGuard::allowOnce(const PressedRun &run)
{
    m_allowed = run;
    // A press that announces nothing, such as one without a device, leaves nothing behind.
    QTimer::singleShot(0ms, this, [this] { m_allowed.reset(); });
}

bool PressGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == runProperty
        && watched->property(runProperty).isValid())
        runAnnounced(watched);
    return QObject::eventFilter(watched, event);
}

void PressGuard::runAnnounced(QObject *page)
{
    const std::optional<PressedRun> allowed = std::exchange(m_allowed, std::nullopt); // for this one only
    const PressedRun run = announcedBy(page);
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(run.family);
    if (!isFormThere() || !family || !page->property(refusedProperty).toString().isEmpty())
        return;
    dropQuestion(); // it is about an earlier press
    if (allowed && *allowed == run)
        return;
    FormPage pressed = FormPage::of(m_form, *family);
    pressed.values = run.values;
    const PressQuestion::Asked asked{run, ValueChecks::onvifGap(pressed, run.devIds) + ValueChecks::of(pressed),
                                     allowed.has_value()};
    if (!asked.isChanged && asked.complaints.isEmpty() && run.devIds.size() <= m_settings->askAbove())
        return;
    page->setProperty(refusedProperty, tr("Configure asks first whether this is meant."));
    m_toAsk = asked;
    QTimer::singleShot(0ms, this, &PressGuard::ask); // the page is in the middle of its press
}

void PressGuard::ask()
{
    const std::optional<PressQuestion::Asked> asked = std::exchange(m_toAsk, std::nullopt);
    if (!asked || !isFormThere())
        return;
    m_question = new PressQuestion(m_form, *asked, m_form->window());
    // Pressed from the event loop: the press comes back when the run is over, and the question may be gone by then.
    connect(m_question, &QDialog::accepted, this,
            [this, run = asked->run] { QTimer::singleShot(0ms, this, [this, run] { press(run); }); });
    connect(m_question, &PressQuestion::signalPreview, this, &PressGuard::signalPreview);
    m_question->open();
}

void PressGuard::press(const PressedRun &run)
{
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(run.family);
    if (!isFormThere() || !family)
        return;
    allowOnce(run);
    FormPage::of(m_form, *family).press(); // this may be gone afterwards: nothing may follow
}

} // namespace orda_client
