#include "run/ParamsCfgPage.h"

#include "run/BatchCfgContact.h"
#include "run/CfgResultsRecorder.h"
#include "run/CheckBoxAccess.h"
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
#include <vms_client_sdk/Requests.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QUrl>
#include <QUuid>

#include <algorithm>

namespace orda_batchCfg {

namespace {

// One run at a time in the whole process: all runs wait in nested event loops on one stack, where an older one could
// only end after the younger ones.
class RunLock
{
public:
    RunLock() { s_running = true; }
    ~RunLock() { s_running = false; }
    Q_DISABLE_COPY_MOVE(RunLock)

    static bool isHeld() { return s_running; }

private:
    static bool s_running;
};

bool RunLock::s_running = false;

void alert(const QString &text)
{
    orda_worker::SystemAssistant::instance().messageAlert(orda_worker::DictDef::instance().alertTitle(), text);
}

// A running task: its place in the run and its request id. All of them are gone through after each result, so they
// stand side by side in memory; a pair of these is moved as bytes.
using Waiting = QPair<int, QString>;

} // namespace

// All that the handlers of a run share. It outlives the page when the page is deleted in mid-run.
struct ParamsCfgPage::Run
{
    int total = 0;
    int success = 0;
    int failure = 0;
    QVector<Waiting> waiting; // by place
    QPointer<orda_base::DisabledWaitingWt> overlay;
    QUuid overlayId;
    QEventLoop loop;

    int finished() const { return success + failure; }
    /// @return false when it was gone already
    bool remove(int place)
    {
        const auto found =
            std::lower_bound(waiting.begin(), waiting.end(), place,
                             [](const Waiting &candidate, int wanted) { return candidate.first < wanted; });
        if (found == waiting.end() || found->first != place)
            return false;
        waiting.erase(found);
        return true;
    }
};

ParamsCfgPage::ParamsCfgPage(const QString &title, const QString &recordFile, QWidget *parent)
    : QWidget(parent)
    , m_title(title)
    , m_recorder(new CfgResultsRecorder(recordFile, this))
{
    installCheckBoxAccess();
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
    if (const std::shared_ptr<Run> run = m_run.lock()) {
        orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(run->overlayId);
        run->loop.quit();
    }
}

void ParamsCfgPage::setParams(const QVector<Param> &params)
{
    m_params = params;
    QList<QCheckBox *> boxes;
    for (const Param &param : params) {
        if (param.box && !boxes.contains(param.box)) {
            boxes.append(param.box);
            connect(param.box, &QCheckBox::clicked, this, &ParamsCfgPage::slotSelectedParamsChanged);
        }
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
    connect(all, &QCheckBox::clicked, this, [this, all, boxes](bool checked) {
        all->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        for (QCheckBox *box : boxes)
            box->setChecked(checked);
        refresh();
    });
}

void ParamsCfgPage::slotSelectedParamsChanged()
{
    updateSelection(m_selections.constLast().all);
}

void ParamsCfgPage::updateSelection(const QCheckBox *all)
{
    for (const Selection &selection : qAsConst(m_selections)) {
        if (selection.all == all) {
            const auto ticked = std::count_if(selection.boxes.begin(), selection.boxes.end(),
                                              [](const QCheckBox *box) { return box->isChecked(); });
            const bool isWhole = ticked == selection.boxes.size();
            selection.all->setCheckState(isWhole ? Qt::Checked : ticked == 0 ? Qt::Unchecked : Qt::PartiallyChecked);
        }
    }
    refresh();
}

ParamsCfgPage::Value ParamsCfgPage::switchState(const QAbstractButton *button)
{
    return [button] { return button->isChecked(); };
}

ParamsCfgPage::Value ParamsCfgPage::switchNumber(const QAbstractButton *button)
{
    return [button] { return button->isChecked() ? 1 : 0; };
}

ParamsCfgPage::Value ParamsCfgPage::editedText(const QLineEdit *edit)
{
    return [edit] { return edit->text(); };
}

ParamsCfgPage::Value ParamsCfgPage::itemData(const QComboBox *combo)
{
    return [combo] { return QJsonValue::fromVariant(combo->currentData()); };
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
        if ((m_flags & param.bit) != 0) {
            const QJsonValue value = param.value();
            if (!value.isUndefined())
                object.insert(QLatin1String(param.key), value);
        }
    }
    return object;
}

void ParamsCfgPage::configure()
{
    if (RunLock::isHeld()) {
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

    qCDebug(logRun) << m_title << "begins:" << devIds.size() << "devices";
    const RunLock lock;
    const auto run = std::make_shared<Run>();
    m_run = run;
    run->total = devIds.size();
    startTasks(run, devIds);

    const QPointer<ParamsCfgPage> self(this); // the form may be deleted while the loop turns
    run->loop.exec();
    if (!self)
        return; // nothing of ours is left to touch
    if (run->finished() < run->total)
        abandonRun(); // the application is quitting
    orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(run->overlayId);
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
    setProperty("recordError", QString());
    setProperty("recordEntryEnds", {});
    return true;
}

void ParamsCfgPage::startTasks(const std::shared_ptr<Run> &run, const QStringList &devIds)
{
    const QJsonObject runValues = values();
    run->overlay = new orda_base::DisabledWaitingWt(BatchCfgContact::instance().formWidget(), tr("Configuring..."));
    run->overlayId = run->overlay->getUuid();
    run->overlay->setProperty("total", run->total);
    tellProgress(*run);
    run->overlay->show();
    m_recorder->open();

    for (int place = 0; place < devIds.size(); ++place) {
        ParamsCfgTask *task = createTask(devIds.at(place), runValues);
        run->waiting.push_back({place, task->requestId()});
        connect(task, &ParamsCfgTask::signalCfgResult, this,
                [this, run, place, task](const QString &devId, const QString &msg, int errorCode) {
                    if (run->remove(place)) {
                        task->deleteLater();
                        handleResult(*run, devId, msg, errorCode);
                    }
                });
    }
}

void ParamsCfgPage::handleResult(Run &run, const QString &devId, const QString &msg, int errorCode)
{
    // A device that answers shows that the line is working: all the others get their whole waiting time again.
    for (const Waiting &task : qAsConst(run.waiting))
        vms_sdk::renewal_request_id(task.second);
    m_recorder->record(devId, msg);
    ++(errorCode == ParamsCfgTask::Success ? run.success : run.failure);
    if (run.finished() >= run.total) {
        run.loop.quit();
        finishRun(run);
    }
    if (run.overlay) {
        run.overlay->updateDescription(tr("Configuring(%1/%2)...").arg(run.finished()).arg(run.total));
        tellProgress(run);
    }
}

void ParamsCfgPage::tellProgress(const Run &run)
{
    // For the client, in numbers: the description is in the operator's language.
    run.overlay->setProperty("finished", run.finished());
}

void ParamsCfgPage::finishRun(const Run &run)
{
    m_recorder->close();
    setProperty("recordError", m_recorder->error());
    setProperty("recordEntryEnds", QVariant::fromValue(m_recorder->entryEnds()));
    m_reportBt->show();
    m_confirmUuid = QUuid::createUuid().toString();
    const QString text = tr("A total of %1 devices have been configured, success:%2, failure:%3")
                             .arg(run.total)
                             .arg(run.success)
                             .arg(run.failure);
    orda_worker::SystemAssistant::instance().eventConfirm({m_confirmUuid, m_title, text, {tr("Detail"), tr("Cancel")}});
}

void ParamsCfgPage::abandonRun()
{
    qDeleteAll(findChildren<ParamsCfgTask *>());
    m_recorder->close();
}

void ParamsCfgPage::openReport()
{
    QDesktopServices::openUrl(QUrl(m_recorder->filePath()));
}

} // namespace orda_batchCfg
