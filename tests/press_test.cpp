#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"
#include "support/Store.h"

#include "client/common/ElidedLabel.h"
#include "client/form/Families.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/press/PressGuard.h"
#include "client/press/PressLine.h"
#include "client/progress/RunProgress.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryWriter.h"
#include "journal/JournalTransport.h"
#include "journal/PageWatch.h"

#include <QtWidgets>
#include <orda_base/BaseForm.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ClientSdk.h>

using namespace orda_client;
using namespace orda_journal;
using namespace std::chrono_literals;

namespace {

QStringList healthy(const ScriptedTransport::Request &request)
{
    return {answer(request.method(), {{"bShowOSD", true}, {"channelName", "old"}})};
}

/// The devices of "02": "dev0" and "dev2".
QStringList idsOf(const QString &numbers)
{
    QStringList devIds;
    for (const QChar number : numbers)
        devIds << QString("dev") + number;
    return devIds;
}

/// The form in a window with all that stands around it, over a scripted transport. Devices are "dev0" on, called "Cam
/// 0" on, the third a recorder; on the page of the on-screen display nothing but "osdVisible" is ticked.
struct Site
{
    explicit Site(int devices, const ScriptedTransport::Script &script = healthy)
    {
        auto scripted = std::make_unique<ScriptedTransport>(script);
        transport = scripted.get();
        auto made = std::make_unique<JournalTransport>(std::move(scripted), nullptr);
        journal = made.get();
        QObject::connect(journal, &JournalTransport::signalRunBegan, &window, [this] { ++begun; });
        vms_sdk::ClientSdk::instance().setTransport(std::move(made));
        vms_sdk::ClientSdk::instance().setRequestTimeout(500ms);
        auto &store = orda_data::DevsMgrData::instance();
        for (int i = 0; i < devices; ++i) {
            const QString number = QString::number(i);
            vms_sdk::DevInfo dev;
            dev.id = "dev" + number;
            dev.name = "Cam " + number;
            dev.ip = "10.0.0.1";
            dev.accessCode = 1;
            dev.kindCode = i == 2 ? 6 : 1;
            store.updateDevs({dev});
            store.setDevStatus(dev.id, vms_sdk::DevOnline);
        }
        form = orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm();
        auto *watch = new PageWatch(journal, &window);
        QObject::connect(watch, &PageWatch::signalDeclined, &window, [this] { ++alerts; });
        for (const Family &family : families())
            watch->watch(form->findChild<QWidget *>(family.pageName));
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(form);
        guard = new PressGuard(&window, &settings, &window);
        layout->addWidget(new PressLine(&window));
        layout->addWidget(new RunProgress(journal, &settings));
        window.show();
        QApplication::setActiveWindow(&window);
        take("open osd_param, fill osdVisible");
    }

    ~Site()
    {
        dismissDialogs();
        delete form;
        clearStore();
        vms_sdk::ClientSdk::instance().setTransport(nullptr);
    }

    QPushButton *button(const QString &name) const { return window.findChild<QPushButton *>(name); }
    QWidget *page() const { return FormPage::shown(form).page; }
    static PressQuestion *question() { return qobject_cast<PressQuestion *>(QApplication::activeModalWidget()); }

    /// Its release is left out: the window may be gone by then.
    static void key(const QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyPress(widget->window()->windowHandle(), key, modifiers);
    }

    /// Presses on Configure, and what happens beside them. @return whether each question came, and could be answered
    bool take(const QString &steps)
    {
        const QStringList list = steps.split(", ");
        return std::all_of(list.begin(), list.end(), [this](const QString &step) {
            return step[0] == '?' ? answer(step.mid(2)) : (press(step.section(' ', 0, 0), step.section(' ', 1)), true);
        });
    }

    void press(const QString &step, const QString &rest) const
    {
        auto *okBt = page()->findChild<QPushButton *>("okBt");
        okBt->setFocus();
        if (step == "mouse")
            QTest::mouseClick(okBt, Qt::LeftButton);
        else if (step.endsWith("Return"))
            key(okBt, Qt::Key_Return, step == "Return" ? Qt::NoModifier : Qt::ControlModifier);
        else if (step == "reader")
            QAccessible::queryAccessibleInterface(okBt)->actionInterface()->doAction("Press");
        else if (step == "program")
            okBt->click();
        else if (step == "allow")
            guard->allowOnce({"osd", {{"bShowOSD", false}}, idsOf("012")});
        else if (step == "wait")
            QTest::qWait(20);
        else if (step == "tick")
            FormTicks::tickExactly(form, idsOf(rest));
        else if (step == "search")
            form->findChild<QWidget *>("searchBox")->findChild<QLineEdit *>()->setText(rest);
        else if (step == "close")
            question()->close();
        else if (rest == "form")
            delete form;
        else
            changeForm(step, rest);
    }

    void changeForm(const QString &step, const QString &rest) const
    {
        if (step == "open") {
            form->findChild<QAbstractButton *>(rest)->click();
            for (const char *all : {"allParams", "allStreams"}) // all were ticked
                if (auto *box = page()->findChild<QCheckBox *>(all))
                    box->click();
        } else if (step == "fill") { // lines of the page, with "=" and "_" for a blank; boxes that are clicked
            const QStringList words = rest.split(' ');
            for (const QString &word : words)
                if (const QString name = word.section('=', 0, 0); name != word)
                    page()->findChild<QLineEdit *>(name)->setText(word.section('=', 1).replace('_', ' '));
                else
                    page()->findChild<QCheckBox *>(name)->click();
        } else {
            orda_data::DevsMgrData::instance().setDevStatus("dev" + rest, vms_sdk::DevOffline);
        }
    }

    bool answer(const QString &step) const
    {
        if (!QTest::qWaitFor([] { return question() != nullptr; }))
            return false;
        const auto find = [](const QString &name) { return question()->findChild<QPushButton *>("question" + name); };
        const bool isCancelReady = question()->focusWidget() == find("Cancel"); // at first
        if (step != "at once" && !QTest::qWaitFor([&] { return find("Configure")->isEnabled(); }))
            return false;
        if (step.endsWith(" key"))
            key(question(), step == "Esc key" ? Qt::Key_Escape : step == "Tab key" ? Qt::Key_Backtab : Qt::Key_Return);
        else
            QTest::mouseClick(find(step == "at once" ? "Configure" : step), Qt::LeftButton);
        return isCancelReady || step == "Return key";
    }

    /// All texts of the question that is open.
    QString asked() const
    {
        QString texts;
        const auto labels = question() ? question()->findChildren<QLabel *>() : QList<QLabel *>();
        for (const QLabel *label : labels)
            texts += label->text() + '\n';
        texts += question() ? question()->findChild<QPlainTextEdit *>()->toPlainText() : QString();
        return texts.replace("\n", " / ");
    }

    QString written() const // numbers of devices
    {
        QString numbers;
        for (const auto &request : qAsConst(transport->requests))
            numbers += request.method() == "chnosd_set_param" ? request.devId.right(1) : QString();
        return numbers;
    }

    QString said(const char *label) const
    {
        const auto *line = window.findChild<ElidedLabel *>(label);
        return line->isVisible() ? line->wholeText() : QString();
    }

    QWidget window;
    ClientSettings settings{QDir::tempPath() + "/press_test.ini"};
    ScriptedTransport *transport;
    JournalTransport *journal;
    QPointer<QWidget> form;
    PressGuard *guard;
    int begun = 0, alerts = 0;
};

} // namespace

class PressTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(100); } // for which the question waits

    void saysWhatAPressWouldDo_data()
    {
        columns<QString, QString, QString>({"steps", "text", "complaints"});
        rowsFrom("press_line.txt");
    }

    void saysWhatAPressWouldDo()
    {
        QFETCH(QString, steps);
        QFETCH(QString, text);
        QFETCH(QString, complaints);
        Site site(3);
        QTRY_COMPARE(site.said("pressText"), QString("No device is ticked"));
        site.take(steps);
        QTRY_COMPARE(site.said("pressText"), text);
        QCOMPARE(site.said("pressComplaint"), complaints.isEmpty() ? QString() : "Looks wrong: " + complaints);
        QCOMPARE(site.button("previewBt")->isEnabled(), text.contains("device(s)") && !text.startsWith("No device"));
    }

    void asksBeforeItConfigures_data()
    {
        columns<QString, QString, QString, QString>({"askAbove", "steps", "question", "written"});
        rowsFrom("presses.txt");
    }

    void asksBeforeItConfigures()
    {
        QFETCH(QString, askAbove);
        QFETCH(QString, steps);
        QFETCH(QString, question);
        QFETCH(QString, written);
        Site site(3);
        QSignalSpy preview(site.guard, &PressGuard::signalPreview);
        site.settings.setAskAbove(askAbove.toInt());
        QVERIFY(site.take("tick 012, " + steps));
        QTRY_VERIFY2(question.isEmpty() ? !site.question() : site.asked().contains(question), qPrintable(site.asked()));
        QTRY_COMPARE(site.written(), written);
        QTest::qWait(20); // what should not follow
        QCOMPARE(site.begun, written.isEmpty() ? 0 : 1); // a press that was declined is no run
        QCOMPARE(site.alerts, 0);
        QCOMPARE(preview.count(), steps.count("Preview"));
    }

    void stopsInMidRun_data()
    {
        columns<bool>({"byMouse"});
        row("by mouse", true);
        row("by its keys", false);
    }

    void stopsInMidRun()
    {
        QFETCH(bool, byMouse);
        Site site(3, [](auto &request) { return request.devId == "dev0" ? healthy(request) : QStringList(); });
        QTimer::singleShot(150ms, &site.window, [&] { // when one has answered
            const QWidget *overlay = FormTicks::runOverlay(site.form);
            QVERIFY(overlay && overlay->hasFocus());
            byMouse ? QTest::mouseClick(site.button("stopRun"), Qt::LeftButton)
                    : Site::key(&site.window, Qt::Key_Escape, Qt::ShiftModifier);
            QVERIFY(overlay->hasFocus());
            QCOMPARE(site.said("runCounts"), QString("1 done, 2 left"));
            QVERIFY(site.said("runStopped").endsWith("what has been written stays written: 1 device(s)"));
            const auto second = site.transport->requests.at(1);
            emit site.transport->answered(second.requestId, healthy(second).at(0)); // after which it would be written
        });
        QVERIFY(site.take("tick 012, fill name, mouse")); // the third stays silent
        QCOMPARE(site.said("runCounts"), QString("Stopped. Written: 1, not written: 2"));
        QCOMPARE(site.written(), QString("0"));
        site.button("closeRun")->click();
        QCOMPARE(site.said("runCounts"), QString());
    }

    void haltsByItself_data()
    {
        columns<int, int, int>({"share", "notReached", "failures"});
        row("never", 0, 0, 8);
        row("more than a quarter of all", 25, 0, 3);
        row("those that were not reached have not failed", 25, 4, 3);
        row("nothing is left to halt", 99, 0, 8);
    }

    void haltsByItself()
    {
        QFETCH(int, share);
        QFETCH(int, notReached);
        QFETCH(int, failures);
        Site site(6); // two of the run are not known
        site.settings.setHaltShare(share);
        site.take("off 5");
        const RunStart run{"id", "osd", "apply", {}, {}, {}, idsOf("01234567")};
        QCOMPARE(site.journal->beginRun(run, JournalTransport::Owner::Engine), QString());
        QCOMPARE(site.said("runOffline"), QString("Known to be off line: Cam 5, dev6 and 1 more"));
        int settled = 0;
        for (; settled < run.devIds.size() && !site.journal->isStopped(); ++settled)
            settled < notReached ? site.journal->settleNotReached(run.devIds.at(settled), "off line")
                                 : site.journal->settle(run.devIds.at(settled), "refused", -5);
        QCOMPARE(settled, notReached + failures);
        QCOMPARE(site.said("runStopped").contains(QString("more than %1 % of the devices").arg(share)), failures < 8);
        site.journal->end();
        QCOMPARE(site.said("runFailures").count("(refused)"), 3);
        QVERIFY(site.said("runCounts").contains("Written: 0, not written: 8"));
    }

    void writesOnlyWhereSomethingHasChanged()
    {
        Site site(2);
        QVERIFY(site.take("tick 01, fill name nameParam=old, mouse")); // OSD Visible goes off
        QCOMPARE(site.said("runCounts"), QString("Written: 2, not written: 0"));
        dismissDialogs();
        site.journal->end();
        const RunStart undo{"id", "osd", "undo", "other", {}, {}, idsOf("01")};
        QCOMPARE(site.journal->beginRun(undo, JournalTransport::Owner::Engine), QString());
        site.journal->settle("dev0", "already back", 0);
        site.journal->stop();
        site.journal->end();
        QCOMPARE(site.said("runCounts"), QString("Written: 0, unchanged: 1, not written: 1"));
    }

    void tellsTheTimeLeftFromThePace()
    {
        RunTally tally(100);
        for (int i = 0; i < 20; ++i) // the first ten at once, which is no pace
            tally.add(i < 10 ? Outcome::NotReached : Outcome::Done, qMax(0, i - 10) * 1s);
        QVERIFY(!tally.timeLeft(2s)); // too early to say
        QCOMPARE(tally.timeLeft(10s).value(), 80'000ms);
        QVERIFY(!tally.isWaiting(12s));
        QVERIFY(tally.isWaiting(13s) && !tally.timeLeft(13s)); // those that are left may be silent
    }
};

ORDA_TEST_MAIN(PressTest)

#include "press_test.moc"
