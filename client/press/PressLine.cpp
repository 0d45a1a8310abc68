#include "client/press/PressLine.h"

#include "client/common/ElidedLabel.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/press/PressTexts.h"
#include "client/press/ValueChecks.h"

#include <orda_base/DelayedCall.h>
#include <orda_base/ReturnPressesButton.h>

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableWidget>

#include <chrono>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

// Reading 10,000 rows takes a few milliseconds; thousands of devices that come online are thousands of changes.
constexpr auto refreshDelay = 80ms;
constexpr auto announceDelay = 2s; // a screen reader needs that long for one text

constexpr int spacing = 2;

/// What may change a page in a way that it has no signal for.
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace

PressLine::PressLine(QWidget *form, QWidget *parent)
    : QWidget(parent)
    , m_form(form)
    , m_text(new ElidedLabel(QStringLiteral("pressText"), this))
    , m_complaint(new ElidedLabel(QStringLiteral("pressComplaint"), this))
    , m_preview(new QPushButton(tr("Pre&view…"), this))
    , m_refreshSoon(new orda_base::DelayedCall(
          refreshDelay, [this] { refresh(); }, this))
    , m_announceSoon(new orda_base::DelayedCall(
          announceDelay, [this] { announce(); }, this))
{
    setObjectName(QStringLiteral("pressLine"));
    buildWidgets();
    followForm();
    refresh();
    announce();
}

void PressLine::buildWidgets()
{
    m_complaint->setProperty("page_caption", true); // bold: it is to be seen
    m_complaint->hide();
    m_preview->setObjectName(QStringLiteral("previewBt"));
    m_preview->setProperty("common_bt_style2", true);
    m_preview->setAutoDefault(false);
    m_preview->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the form, whose keys go on working
    m_preview->setToolTip(tr("Shows what Configure would change on each ticked device. Nothing is written."));
    new orda_base::ReturnPressesButton(m_preview); // as in the form
    connect(m_preview, &QPushButton::clicked, this, &PressLine::signalPreview);

    auto *row = new QHBoxLayout;
    row->addWidget(m_text, 1);
    row->addWidget(m_preview);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    layout->addLayout(row);
    layout->addWidget(m_complaint);
}

template <typename Editor, typename Signal>
void PressLine::followEditors(Signal signal)
{
    const auto editors = m_form->findChildren<Editor *>();
    for (const Editor *editor : editors)
        connect(editor, signal, m_refreshSoon, [this] { m_refreshSoon->request(); });
}

void PressLine::followForm()
{
    using orda_base::DelayedCall;
    qApp->installEventFilter(this);
    // Assistive technology and programs change editors without any input.
    followEditors<QAbstractButton>(&QAbstractButton::toggled);
    followEditors<QComboBox>(QOverload<int>::of(&QComboBox::currentIndexChanged));
    followEditors<QSpinBox>(QOverload<int>::of(&QSpinBox::valueChanged));
    followEditors<QSlider>(&QSlider::valueChanged);
    followEditors<QLineEdit>(&QLineEdit::textChanged); // the search, too
    followEditors<QStackedWidget>(&QStackedWidget::currentChanged);

    // Devices that come and go are rows that do.
    const QTableWidget *list = FormTicks::listOf(m_form);
    const QAbstractItemModel *rows = list->model();
    connect(rows, &QAbstractItemModel::rowsInserted, m_refreshSoon, &DelayedCall::request);
    connect(rows, &QAbstractItemModel::rowsRemoved, m_refreshSoon, &DelayedCall::request);
    connect(rows, &QAbstractItemModel::dataChanged, m_refreshSoon, &DelayedCall::request);
    // A row that is hidden or shown again gets another height.
    connect(list->verticalHeader(), &QHeaderView::sectionResized, m_refreshSoon, &DelayedCall::request);
    connect(list, &QObject::destroyed, m_refreshSoon, &DelayedCall::request);
}

bool PressLine::eventFilter(QObject *watched, QEvent *event)
{
    if (isInput(event->type()) && m_form && watched->isWidgetType()
        && static_cast<QWidget *>(watched)->window() == m_form->window())
        m_refreshSoon->request();
    return QWidget::eventFilter(watched, event);
}

void PressLine::refresh()
{
    const bool isFormThere = m_form && FormTicks::listOf(m_form);
    const FormPage page = isFormThere ? FormPage::shown(m_form) : FormPage();
    const FormTicks ticks = isFormThere ? FormTicks::of(m_form) : FormTicks();
    const bool isEffective = PressTexts::isEffective(page, ticks);
    const QStringList gap = isEffective ? ValueChecks::onvifGap(page, ticks.devIds) : QStringList();
    const QStringList complaints = gap + ValueChecks::of(page);
    m_text->setWholeText(PressTexts::press(page, ticks));
    m_complaint->setWholeText(complaints.isEmpty() ? QString()
                                                   : tr("Looks wrong: %1").arg(complaints.join(QStringLiteral("; "))));
    m_complaint->setVisible(!complaints.isEmpty());
    m_preview->setEnabled(isEffective);
    m_announceSoon->request();
}

void PressLine::announce()
{
    const QString complaint = m_complaint->wholeText();
    const QString text =
        complaint.isEmpty() ? m_text->wholeText() : m_text->wholeText() + QStringLiteral(". ") + complaint;
    if (m_text->accessibleName() == text)
        return;
    m_text->setAccessibleName(text); // which reports a change of the name
    m_complaint->setAccessibleName(complaint);
    m_preview->setAccessibleDescription(text);
}

} // namespace orda_client
