#include "run/ParamsCfgPage.h"

#include "run/BatchCfgContact.h"
#include "run/CfgFamily.h"
#include "run/CfgResultsRecorder.h"
#include "run/CfgRun.h"
#include "run/KeyEditor.h"
#include "run/Logging.h"
#include "run/ParamsCfgTask.h"
#include "run/SwitchImages.h"
#include "run/WheelGuard.h"

#include <XCOMMON/XLabel.h>
#include <orda_base/DisabledWaitingWt.h>
#include <orda_base/DisabledWaitingWtManager.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/DictDef.h>
#include <orda_worker/SystemAssistant.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDesktopServices>
#include <QEventLoop>
#include <QHash>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QUrl>
#include <QUuid>

#include <algorithm>

namespace orda_batchCfg {

namespace {

int tickedBoxes(const QList<QCheckBox *> &boxes)
{
    return int(std::count_if(boxes.begin(), boxes.end(), [](const QCheckBox *box) { return box->isChecked(); }));
}

bool areSomeTicked(const QList<QCheckBox *> &boxes)
{
    const int ticked = tickedBoxes(boxes);
    return ticked > 0 && ticked < boxes.size();
}

void alert(const QString &text)
{
    orda_worker::SystemAssistant::instance().messageAlert(orda_worker::DictDef::instance().alertTitle(), text);
}

} // namespace

// A run and how it is shown. It outlives the page when the page is deleted in mid-run.
struct ParamsCfgPage::ShownRun
{
    explicit ShownRun(int devices)
        : run(devices)
    {
    }

    CfgRun run;
    QPointer<orda_base::DisabledWaitingWt> overlay;
    QUuid overlayId;
    QEventLoop loop;
};

ParamsCfgPage::ParamsCfgPage(const CfgFamily &family, QWidget *parent)
    : QWidget(parent)
    , m_family(family)
    , m_recorder(new CfgResultsRecorder(family.recordFile(), this))
{
    connect(&orda_worker::AssistantSignals::instance(), &orda_worker::AssistantSignals::signalEventConfirmOperBtClicked,
            this, [this](const QString &uuid, int button) {
                if (m_confirmUuid.isEmpty())
                    return; // no run yet, and other dialogs of the client may have no identifier
                if (uuid == m_confirmUuid && button == 0)
                    m_reportBt->click();
            });
}

ParamsCfgPage::~ParamsCfgPage()
{
    if (const std::shared_ptr<ShownRun> shown = m_run.lock()) {
        orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(shown->overlayId);
        shown->loop.quit();
    }
}

void ParamsCfgPage::setParams(const QVector<Param> &params)
{
    m_params = params;
    QList<QCheckBox *> boxes;
    for (const Param &param : params) {
        if (param.box && !boxes.contains(param.box)) {
            boxes.append(param.box);
            connect(param.box, &QCheckBox::toggled, this, &ParamsCfgPage::slotSelectedParamsChanged);
        }
        if (param.key)
            fillEditor(param.editor, m_family, param.key);
    }
    auto *all = findChild<QCheckBox *>(QStringLiteral("allParams"));
    all->setAccessibleName(tr("All parameters"));
    addSelection(all, boxes, tr("Please select the parameters to be configured"));
    updateFlags();

    m_okBt = findChild<QPushButton *>(QStringLiteral("okBt"));
    m_reportBt = findChild<QPushButton *>(QStringLiteral("reportBt"));
    m_reportBt->hide();
    // In a client's dialog, Return in any editor would press the first button that it finds.
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setAutoDefault(false);
    new WheelGuard(this);
    completeSwitchImages(this);
    connect(m_okBt, &QPushButton::clicked, this, &ParamsCfgPage::configure);
    connect(m_reportBt, &QPushButton::clicked, this, &ParamsCfgPage::openReport);
}

void ParamsCfgPage::addSelection(QCheckBox *all, const QList<QCheckBox *> &boxes, const QString &noneAlert)
{
    m_selections.append({all, boxes, noneAlert});
    for (QCheckBox *box : boxes)
        box->setAccessibleName(tr("Configure %1").arg(box->text())); // the editor of the value has the name itself
    const auto tickAll = [this, all, boxes](bool checked) {
        m_isTickingAll = true;
        all->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        for (QCheckBox *box : boxes)
            box->setChecked(checked);
        m_isTickingAll = false;
        refresh();
    };
    connect(all, &QCheckBox::clicked, this, tickAll);
    // Assistive technology toggles the box without a click and means one, which ticks all where only some are ticked. A
    // program that sets the state of the box means no more than that.
    connect(all, &QCheckBox::toggled, this, [this, boxes, tickAll](bool checked) {
        if (QAccessible::isActive() && !m_isTickingAll)
            tickAll(checked || areSomeTicked(boxes));
    });
}

void ParamsCfgPage::slotSelectedParamsChanged()
{
    updateSelection(m_selections.constLast().all);
}

void ParamsCfgPage::updateSelection(const QCheckBox *all)
{
    if (m_isTickingAll)
        return; // all boxes are about to change, and what follows from them is worked out once
    for (const Selection &selection : qAsConst(m_selections)) {
        if (selection.all == all) {
            const int ticked = tickedBoxes(selection.boxes);
            const bool isWhole = ticked == selection.boxes.size();
            m_isTickingAll = true; // the boxes are as they should be
            selection.all->setCheckState(isWhole ? Qt::Checked : ticked == 0 ? Qt::Unchecked : Qt::PartiallyChecked);
            m_isTickingAll = false;
        }
    }
    refresh();
}

void ParamsCfgPage::updateFlags()
{
    m_flags = 0;
    for (const Param &param : qAsConst(m_params))
        if (param.box && param.box->isChecked())
            m_flags |= param.bit;
}

void ParamsCfgPage::refresh()
{
    m_okBt->setEnabled(isSelectionComplete(nullptr));
    updateFlags();
    for (const Param &param : qAsConst(m_params))
        for (QWidget *panel : param.panels)
            panel->setVisible((m_flags & param.bit) != 0);
}

void ParamsCfgPage::showEvent(QShowEvent *event)
{
    const auto captions = findChildren<XCOMMON::XLabel *>();
    int widest = 0;
    for (XCOMMON::XLabel *caption : captions) {
        caption->ensurePolished(); // with the font that it will have
        widest = std::max({widest, caption->minimumWidth(), caption->sizeHint().width()});
    }
    for (XCOMMON::XLabel *caption : captions)
        caption->setMinimumWidth(widest);
    QWidget::showEvent(event);
}

void ParamsCfgPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    // It goes no further: a dialog around the form would press a button of its own.
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    if (button && !event->isAutoRepeat())
        button->click(); // the page may be gone afterwards: nothing may follow
}

bool ParamsCfgPage::focusNextPrevChild(bool next)
{
    const bool hasMoved = QWidget::focusNextPrevChild(next);
    // A scroll area follows the focus only from one of its own widgets to another.
    auto *area = findChild<QScrollArea *>();
    if (hasMoved && area && area->isAncestorOf(focusWidget()))
        area->ensureWidgetVisible(focusWidget());
    return hasMoved;
}

bool ParamsCfgPage::isSelectionComplete(QString *alertText) const
{
    for (const Selection &selection : m_selections) {
        if (selection.all->checkState() == Qt::Unchecked) {
            if (alertText)
                *alertText = selection.noneAlert;
            return false;
        }
    }
    return true;
}

QJsonObject ParamsCfgPage::values() const
{
    QJsonObject object;
    for (const Param &param : m_params) {
        if ((m_flags & param.bit) != 0 && param.key) {
            const QJsonValue value = param.value ? param.value() : editedValue(param.editor, m_family, param.key);
            if (!value.isUndefined())
                object.insert(QLatin1String(param.key), value);
        }
    }
    return object;
}

QList<ParamsCfgPage::ShownMember> ParamsCfgPage::shownMembers() const
{
    QHash<const QWidget *, QString> captions;
    const auto labels = findChildren<XCOMMON::XLabel *>();
    for (const XCOMMON::XLabel *label : labels)
        captions.insert(label->buddy(), label->text());
    QList<ShownMember> members;
    for (const Param &param : m_params) {
        if (!param.key)
            continue;
        const QString boxText = param.box ? param.box->text() : QString();
        members.append({QString::fromLatin1(param.key), captions.value(param.editor, boxText),
                        param.box ? QList<QCheckBox *>{param.box} : QList<QCheckBox *>(), param.editor});
    }
    return members;
}

QVariantMap ParamsCfgPage::current() const
{
    QVariantList shown;
    const QList<ShownMember> members = shownMembers();
    for (const ShownMember &member : members) {
        QVariantList boxes;
        for (QCheckBox *box : member.boxes)
            boxes.append(QVariant::fromValue<QObject *>(box));
        shown.append(QVariantMap{{QStringLiteral("name"), member.name},
                                 {QStringLiteral("title"), member.title},
                                 {QStringLiteral("boxes"), boxes},
                                 {QStringLiteral("editor"), QVariant::fromValue<QObject *>(member.editor)}});
    }
    return {{QStringLiteral("family"), m_family.name},
            {QStringLiteral("values"), isSelectionComplete(nullptr) ? values() : QJsonObject()},
            {QStringLiteral("members"), shown}};
}

int ParamsCfgPage::taskFlags() const
{
    int taskFlags = 0;
    for (const Param &param : m_params)
        if ((m_flags & param.bit) != 0 && param.key)
            taskFlags |= m_family.key(param.key).flag;
    return taskFlags;
}

void ParamsCfgPage::configure()
{
    if (CfgRun::isUnderWay()) {
        alert(tr("A configuration is under way. Please wait until it has ended."));
        return;
    }
    QString missing;
    if (!isSelectionComplete(&missing)) {
        alert(missing);
        return;
    }
    const QStringList devIds = BatchCfgContact::instance().checkedDevIds();
    if (devIds.isEmpty()) {
        alert(tr("Please select the devices to be configured"));
        return;
    }
    if (!takeRecord())
        return;

    const auto spinBoxes = findChildren<QSpinBox *>();
    for (QSpinBox *spinBox : spinBoxes)
        spinBox->interpretText(); // what is being typed counts, and is shown as it is sent
    const QJsonObject runValues = values();
    const auto shown = std::make_shared<ShownRun>(devIds.size());
    const QPointer<ParamsCfgPage> self(this); // the form may be deleted by a watcher, and while the loop turns
    if (!shown->run.announce(this, m_family.name, runValues, devIds)) {
        if (self)
            m_recorder->close();
        return;
    }
    qCDebug(logRun) << m_family.name << "begins:" << devIds.size() << "devices";
    m_run = shown;
    startRun(*shown, runValues, devIds);

    shown->loop.exec();
    if (!self)
        return; // nothing of ours is left to touch
    if (!shown->run.isOver())
        abandonRun(); // the application is quitting
    orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(shown->overlayId);
}

bool ParamsCfgPage::takeRecord()
{
    const QString holder = m_recorder->reserve();
    setProperty("recordInUse", holder);
    if (!holder.isEmpty()) {
        alert(tr("Nothing was configured: the record file %1 is in use by %2. Wait until its run has ended.")
                  .arg(m_recorder->filePath(), holder));
        return false;
    }
    return true;
}

void ParamsCfgPage::startRun(ShownRun &shown, const QJsonObject &runValues, const QStringList &devIds)
{
    setProperty("recordError", QString());
    setProperty("recordEntryEnds", {});
    const auto makeTask = [this, runValues, flags = taskFlags()](const QString &devId) {
        return m_family.createTask(devId, runValues, flags, this);
    };
    shown.overlay = new orda_base::DisabledWaitingWt(BatchCfgContact::instance().formWidget(), tr("Configuring..."));
    shown.overlayId = shown.overlay->getUuid();
    // For the client, in numbers: the description is in the operator's language.
    shown.overlay->setProperty("total", shown.run.total());
    shown.overlay->setProperty("finished", 0);
    shown.overlay->show();
    m_recorder->open();

    connect(&shown.run, &CfgRun::signalResult, this,
            [this, &shown](const QString &devId, const QString &msg) { handleResult(shown, devId, msg); });
    shown.run.start(devIds, makeTask);
}

void ParamsCfgPage::handleResult(ShownRun &shown, const QString &devId, const QString &msg)
{
    m_recorder->record(devId, msg);
    if (shown.run.isOver()) {
        shown.loop.quit();
        finishRun(shown);
    }
    if (shown.overlay) {
        shown.overlay->updateDescription(tr("Configuring(%1/%2)...").arg(shown.run.finished()).arg(shown.run.total()));
        shown.overlay->setProperty("finished", shown.run.finished());
    }
}

void ParamsCfgPage::finishRun(const ShownRun &shown)
{
    m_recorder->close();
    setProperty("recordError", m_recorder->error());
    setProperty("recordEntryEnds", QVariant::fromValue(m_recorder->entryEnds()));
    m_reportBt->show();
    m_confirmUuid = QUuid::createUuid().toString();
    const QString text = tr("A total of %1 devices have been configured, success:%2, failure:%3")
                             .arg(shown.run.total())
                             .arg(shown.run.success())
                             .arg(shown.run.failure());
    orda_worker::SystemAssistant::instance().eventConfirm(
        {m_confirmUuid, m_family.translated(m_family.title), text, {tr("Detail"), tr("Cancel")}});
}

void ParamsCfgPage::abandonRun()
{
    qDeleteAll(findChildren<ParamsCfgTask *>(QString(), Qt::FindDirectChildrenOnly));
    m_recorder->close();
}

void ParamsCfgPage::openReport()
{
    QDesktopServices::openUrl(QUrl(m_recorder->filePath()));
}

} // namespace orda_batchCfg
