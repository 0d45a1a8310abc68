#include "support/OrdaTest.h"
#include "support/RunsSite.h"

#include "client/app/ClientWindow.h"
#include "client/form/Families.h"
#include "client/record/RecordWindow.h"
#include "client/runs/RunCheckWindow.h"
#include "client/runs/RunComparison.h"
#include "client/runs/RunComparisonWindow.h"
#include "client/runs/RunTargets.h"

#include <orda_worker/AssistantSignals.h>

using namespace orda_client;
using namespace orda_journal;
using device_fleet::Fault;
using orda_batchCfg::Families;

namespace {

/// The whole client over that fleet, with all devices ticked on the page for audio.
struct Pressed : RunsSite
{
    Pressed()
    {
        client.show();
        child(&client, "audio_param")->click();
        if (!QTest::qWaitFor(
                [this] { return child<QTableWidget>(&client, "devsTableWt")->rowCount() >= devIds.size(); }))
            qFatal("the devices are not listed");
        child<QCheckBox>(&client, "selAll")->click();
    }

    void press(const char *button) const { child(child<QWidget>(&client, "audioParametersPage"), button)->click(); }
    static QString recordPath() { return QDir::temp().filePath(findFamily("audio")->recordFile); }

    ClientWindow client{&session, &settings};
};

} // namespace

/// The window of the runs: what it shows of the history, and what it writes to devices, and to which.
class RunsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void whatWasRefusedIsNotShownAsWritten()
    {
        RunsSite site;
        site.fleet.setFault(site.devIds.at(0), "ai_set_param", {Fault::ErrorCode, -5});
        QVERIFY(site.open(site.run("{'aiGain': 33}", site.devIds.mid(0, 2))));
        const QStringList changes = column(site.window, "runDevices", 5); // failures first
        QCOMPARE(changes.size(), 2);
        QVERIFY2(changes.at(0).startsWith("not written: ") && changes.at(0).endsWith(" → 33"),
                 qPrintable(changes.at(0)));
        QVERIFY2(!changes.at(1).contains("not written"), qPrintable(changes.at(1)));
    }

    void failuresAreTriedAgain()
    {
        RunsSite site;
        for (const int place : {1, 2})
            site.fleet.setFault(site.devIds.at(place), "ai_get_param", {Fault::ErrorCode, -1});
        site.fleet.setFault(site.devIds.at(5), "*", {Fault::Garbage});
        const QString first = site.run("{'aiGain': 33}", site.devIds);
        QVERIFY(site.open(first));
        QCOMPARE(column(site.window, "runs", 3), QStringList("Done: 3, Failed: 3"));
        QVERIFY(column(site.window, "runs", 4).constFirst().endsWith(": 33"));
        QVERIFY(column(site.window, "runDevices", 5).filter(QRegularExpression(": \\d+ → 33$")).size() == 3);
        const auto *again = child(site.window, "tryAgain");
        QVERIFY(!again->isEnabled()); // nobody has said which
        auto *groups = child<QTableWidget>(site.window, "groups");
        QCOMPARE(groups->rowCount(), 3);
        groups->selectRow(1);
        QCOMPARE(column(site.window, "runDevices", 4), times(2, "Failed to get audio in parameters(-1)"));

        site.fleet.clearFaults();
        site.written.clear();
        child(site.window, "tryAgain")->click();
        site.answer(site.window, "cancel");
        child(site.window, "tryAgain")->click();
        site.answer(site.window);
        QVERIFY2(site.question.contains("configure 2 device(s) again") && site.question.contains(": 33"),
                 qPrintable(site.question));
        QTRY_COMPARE(column(site.window, "runs", 3), QStringList({"Done: 2", "Done: 3, Failed: 3"}));
        QTRY_COMPARE(column(site.window, "runDevices", 0),
                     QStringList({"Done", "Done"})); // it has turned to the new run
        QCOMPARE(site.written, QSet<QString>({site.devIds.at(1), site.devIds.at(2)}));
        QCOMPARE(site.recorded(first).run.counts.value(Outcome::Failed), 3);
    }

    void runIsVerifiedAndTakenBack()
    {
        RunsSite site;
        site.run("{'aiGain': 20}", site.devIds);
        const QString run = site.run("{'aiGain': 33}", site.devIds);
        const QString changed = site.devIds.at(1);
        site.run("{'aiGain': 44}", {changed});
        QVERIFY(site.open(run));
        const QWidget *verified = site.check("verify", "runVerify", 6);
        QVERIFY(verified);
        QCOMPARE(column(verified, "checked", 0), QStringList("Differs") + times(5, "As written"));
        QVERIFY(column(verified, "checked", 4).constFirst().endsWith(": 33 → 44"));

        site.written.clear();
        QWidget *undo = site.check("undo", "runUndo", 6);
        QVERIFY(undo);
        QCOMPARE(column(undo, "checked", 0), QStringList("Stays as it is") + times(5, "Goes back"));
        QVERIFY(column(undo, "checked", 4).constLast().endsWith(": 33 → 20"));
        QVERIFY(!child<QCheckBox>(undo, "force")->isChecked());
        QVERIFY(site.written.isEmpty()); // a preview
        auto *search = child<QWidget>(undo, "checkedSearch")->findChild<QLineEdit *>();
        search->setText(site.recorded(run).devices.constLast().serialNumber);
        QCOMPARE(child(undo, "takeBack")->text(), QString("&Undo on 1 device(s)…")); // what is hidden is left out
        search->clear();
        child(undo, "takeBack")->click();
        site.answer(undo);
        QVERIFY2(site.question.startsWith("Undo the run on 5 device(s)?"), qPrintable(site.question));
        QTRY_COMPARE(column(site.window, "runs", 3).constFirst(), "Done: 5");
        QVERIFY(column(site.window, "runs", 2).constFirst().startsWith("Undo of 20"));
        for (const QString &devId : qAsConst(site.devIds))
            QCOMPARE(site.gain(devId), devId == changed ? 44 : 20);

        // An undo's values are those that it has taken back: they must not be written again.
        QString error;
        const auto undone =
            readChosenRun(site.options(), RunTexts(site.form.get()), site.runs().constFirst().id, &error);
        QVERIFY(undone);
        const RunTargets none = RunTargets::toTryAgain(*undone, site.devIds);
        QVERIFY(none.selection.devIds.isEmpty() && !none.refusal.isEmpty());

        site.window->showRun(run);
        QTRY_COMPARE(column(site.window, "runDevices", 0).size(), 6);
        undo = site.check("undo", "runUndo", 6);
        QVERIFY(undo);
        QCOMPARE(column(undo, "checked", 0), QStringList("Stays as it is") + times(5, "Already back"));
        child(undo, "force")->click();
        QTRY_COMPARE(column(undo, "checked", 0).constFirst(), "Is written over");
        QVERIFY(column(undo, "checked", 5).constFirst().startsWith("changed since and written over"));
        child(undo, "takeBack")->click();
        site.answer(undo);
        QVERIFY(site.question.contains("is written over"));
        QTRY_COMPARE(site.gain(changed), 20);
    }

    /// The device has another serial number than in the run: whatever stands in its place now is not touched.
    void anotherDeviceIsLeftOutAndNamed()
    {
        RunsSite site;
        const QString run = site.run("{'aiGain': 33}", site.devIds.mid(0, 2));
        vms_sdk::DevInfo other = orda_data::DevsMgrData::instance().getDevInfoById(site.devIds.at(0));
        QVERIFY(site.open(run));
        other.serialNumber = "ANOTHER";
        expectWarning("sign-on refused");
        orda_data::DevsMgrData::instance().updateDevs({other});
        site.written.clear();
        child<QTableView>(site.window, "runDevices")->selectAll();
        child(site.window, "tryAgain")->click();
        site.answer(site.window);
        QVERIFY2(site.question.contains("configure 1 device(s)") && site.question.contains("serial number ANOTHER"),
                 qPrintable(site.question));
        QTRY_COMPARE(column(site.window, "runs", 0).size(), 2);
        QTRY_VERIFY(!site.jobs.isWriting());
        QCOMPARE(site.written, QSet<QString>{site.devIds.at(1)});
        site.window->showRun(run);
        QTRY_COMPARE(column(site.window, "runDevices", 0).size(), 2);
        const QWidget *undo = site.check("undo", "runUndo", 2);
        QVERIFY(undo);
        QCOMPARE(column(undo, "checked", 0), QStringList({"Goes back", "Another device"}));
    }

    /// What was left out when the operator was asked stays out, whatever the inventory has become since.
    void onlyWhatWasAskedAboutIsTriedAgain()
    {
        RunsSite site;
        const QString run = site.run("{'aiGain': 33}", site.devIds.mid(0, 2));
        const vms_sdk::DevInfo own = orda_data::DevsMgrData::instance().getDevInfoById(site.devIds.at(0));
        QVERIFY(site.open(run));
        vms_sdk::DevInfo other = own;
        other.serialNumber = "ANOTHER";
        allowWarnings("sign-on refused"); // when it is dialled in the moment between
        orda_data::DevsMgrData::instance().updateDevs({other});
        child<QTableView>(site.window, "runDevices")->selectAll();
        child(site.window, "tryAgain")->click();
        QTRY_COMPARE(orda_data::DevsMgrData::instance().getDevStatus(own.id), vms_sdk::DevRefused);
        orda_data::DevsMgrData::instance().updateDevs({own});
        QTRY_VERIFY(orda_engine::reachOf(own.id).canBeWritten);
        site.written.clear();
        site.answer(site.window, "write later");
        QVERIFY2(site.question.contains("configure 1 device(s)"), qPrintable(site.question));
        QTRY_COMPARE(column(site.window, "runs", 0).size(), 2);
        QTRY_VERIFY(!site.jobs.isWriting());
        QCOMPARE(site.written, QSet<QString>{site.devIds.at(1)});
    }

    void undoIsNotOfferedByAnOldReading_data()
    {
        columns<QString>({"since"});
        for (const char *since : {"run", "inventory", "run while it is asked"})
            row(since, QString(since));
    }

    void undoIsNotOfferedByAnOldReading()
    {
        QFETCH(QString, since);
        RunsSite site;
        site.run("{'aiGain': 20}", site.devIds);
        const QString run = site.run("{'aiGain': 33}", site.devIds);
        QVERIFY(site.open(run));
        const QPointer<QWidget> undo = site.check("undo", "runUndo", 6);
        QTRY_VERIFY(undo && child(undo, "takeBack")->isEnabled());
        if (since.contains("asked"))
            child(undo, "takeBack")->click();
        if (since.startsWith("run"))
            site.run("{'aiGain': 44}", {site.devIds.at(1)});
        else
            orda_data::DevsMgrData::instance().updateDevs(site.fleet.inventory());
        site.written.clear();
        if (since.contains("asked"))
            site.answer(undo);
        QTest::qWait(50);
        QVERIFY(undo && !child(undo, "takeBack")->isEnabled() && site.written.isEmpty());
        dismissDialogs();
        child(undo, "readAgain")->click();
        QTRY_VERIFY(child(undo, "takeBack")->isEnabled());
    }

    void jobOutlivesTheWindow_data()
    {
        columns<bool>({"isStopped"});
        row("closed meanwhile", false);
        row("stopped from here", true);
    }

    void jobOutlivesTheWindow()
    {
        QFETCH(bool, isStopped);
        RunsSite site;
        const QString run = site.run("{'aiGain': 33}", site.devIds);
        QVERIFY(site.open(run));
        for (const QString &devId : qAsConst(site.devIds))
            site.fleet.setFault(devId, "ai_get_param", {Fault::LateAnswer, -1, std::chrono::milliseconds(500)});
        QSignalSpy recorded(site.session.journal(), &JournalTransport::signalRunRecorded);
        child<QTableView>(site.window, "runDevices")->selectAll();
        child(site.window, "tryAgain")->click();
        site.answer(site.window);
        QTRY_VERIFY(site.session.journal()->isBusy());
        QVERIFY(!child(site.window, "undo")->isEnabled()); // a run is going on
        if (isStopped)
            child(site.window, "stopRunUnderWay")->click();
        else
            site.window->close();
        QVERIFY(recorded.wait());
        QCOMPARE(site.runs().constFirst().counts.value(isStopped ? Outcome::Stopped : Outcome::Unchanged), 6);
    }

    void whatTheEngineRefusesIsSaid()
    {
        RunsSite site;
        const QString run = site.run("{'aiGain': 33}", site.devIds);
        QVERIFY(site.open(run));
        child(site.window, "verify")->click(); // closed while it reads: the turn is free again
        child<QWidget>(site.window, "runVerify")->close();
        QTRY_VERIFY(!child<QWidget>(site.window, "runVerify") && !site.session.journal()->isBusy());
        QCOMPARE(site.session.journal()->beginReading(), QString());
        const QSignalSpy alerts(&orda_worker::AssistantSignals::instance(),
                                &orda_worker::AssistantSignals::signalMessageAlerted);
        child<QTableView>(site.window, "runDevices")->selectAll();
        child(site.window, "tryAgain")->click();
        site.answer(site.window);
        QTRY_COMPARE(alerts.count(), 1);
        QVERIFY(!alerts.at(0).at(1).toString().isEmpty());
        dismissDialogs();
        site.session.journal()->end();
        QCOMPARE(site.runs().size(), 1);
    }

    /// Without values a run would ask for everything that its family has.
    void deviceWithoutValuesIsLeftOut()
    {
        RunDetails details;
        details.run.family = "audio";
        details.devices = {{"own", Outcome::Failed, 0, {}, {}}, {"none", Outcome::Failed, 0, {}, {}}};
        details.devices[0].ownValues = parsed("{'aiGain': 5}");
        const ChosenRun run{{details.run, {}, {}, {}},
                            {{details.devices.at(0), {}}, {details.devices.at(1), {}}},
                            orda_engine::RecordedRun(details)};
        const RunTargets targets = RunTargets::toTryAgain(run, {"own", "none"});
        QCOMPARE(targets.selection.devIds, QStringList("own"));
        QCOMPARE(targets.selection.valuesOf("own"), parsed("{'aiGain': 5}"));
        QCOMPARE(targets.leftOut.size(), 1);
    }

    void historyThatCannotBeReadSaysWhy()
    {
        RunsSite site;
        QFile file(site.options().path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        RunsWindow window(&site.session, &site.jobs, site.form.get(), &site.settings, nullptr);
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        QTRY_VERIFY(child<QLabel>(&window, "runsEmpty")->text().startsWith("The history cannot be read."));
    }

    /// Report opens the runs where there is no viewer. A name that looks like an entry makes no entry of the record.
    void reportWithoutAViewerOpensTheRuns()
    {
        const QTemporaryDir programs; // an opener that finds none
        QFile opener(programs.filePath("xdg-open")), seen(programs.filePath("seen"));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\necho \"$1\" >\"${0%/*}/seen\"\nexit 3\n");
        opener.close();
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Pressed site;
        vms_sdk::DevInfo dev = orda_data::DevsMgrData::instance().getDevInfoById(site.devIds.at(5));
        // A time of this very run, so that nothing but the writer's word tells that this is no entry.
        dev.name = QString("X\n\n%1    SN    10.0.0.1            success                Y")
                       .arg(QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm:ss"));
        orda_data::DevsMgrData::instance().updateDevs({dev});
        site.fleet.setFault(dev.id, "*", {Fault::Garbage});
        site.press("okBt");
        child<QDialog>(&site.client, "eventConfirmDialog")->reject();
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(programs.path()));
        site.press("reportBt");
        QTRY_VERIFY(site.client.findChild<RunsWindow *>());
        qputenv("PATH", path);
        QVERIFY(seen.open(QIODevice::ReadOnly));
        QCOMPARE(seen.readAll(), QFile::encodeName(Pressed::recordPath()) + '\n');
        QTRY_VERIFY(column(site.client.findChild<RunsWindow *>(), "runDevices", 0).contains("Failed"));
        const RecordWindow record(Pressed::recordPath(), &site.client, &site.settings, nullptr);
        QVERIFY(!column(&record, "record", 2).contains("SN"));
        QCOMPARE(column(&record, "record", 0).filter("Unreadable").size(), 1); // one entry, but not one that is sure
    }

    /// What another has put there is not shown, and Report opens the runs.
    void runThatLostItsRecordIsShownAsSuch()
    {
        Pressed site;
        QFile(Pressed::recordPath()).remove();
        QVERIFY(QFile::link(site.place.filePath("elsewhere"), Pressed::recordPath()));
        expectWarning("it is a symbolic link");
        site.press("okBt");
        auto *summary = child<QMessageBox>(&site.client, "eventConfirmDialog");
        QVERIFY(summary->informativeText().contains("\nThe last run left no record"));
        const auto labels = summary->findChildren<QLabel *>();
        for (const QLabel *label : labels) // the dialog has grown
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
        summary->reject();
        site.press("reportBt");
        QVERIFY(site.client.findChild<RunsWindow *>());
        const RecordWindow record(Pressed::recordPath(), &site.client, &site.settings, nullptr);
        QVERIFY(child<QLabel>(&record, "recordEmpty")->text().contains("it is a symbolic link"));
        QFile(Pressed::recordPath()).remove();
    }

    void runsAreCompared_data()
    {
        // Of a device in each run: serial number, outcome, gain before, gain asked for; empty: the run did not have it.
        columns<QString, QString, QString>({"first", "second", "expected"});
        row("the same", "A done 1 5", "A done 1 5", "Same||");
        row("other outcome", "A done 1 5", "A failed 1 5", "OutcomesDiffer||");
        row("other value", "A done 1 5", "A done 1 7", "ValuesDiffer||5 → 7");
        row("other before", "A done 1 5", "A done 5 5", "ValuesDiffer|1 → 5|");
        row("only one run", "A done 1 5", "", "OnlyInFirst||");
        row("only the other", "", "A done 1 5", "OnlyInSecond||");
        row("replaced", "A done 1 5", "B done 1 5", "OnlyInFirst|| OnlyInSecond||");
        row("not sent", "A done 1 5", "A stopped 1 5", "OutcomesDiffer||5 → –");
    }

    void runsAreCompared()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const std::unique_ptr<QWidget> form(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
        const auto runOf = [](const QString &text) {
            RunDetails run;
            run.run.family = "audio";
            const QStringList parts = text.split(' ');
            if (parts.size() < 4)
                return run;
            run.run.values = parsed(QString("{'aiGain': %1}").arg(parts.at(3)));
            bool isKnown = false;
            DeviceRow device{"dev", outcomeFromName(parts.at(1), &isKnown), 0, {}, {}};
            device.serialNumber = parts.at(0);
            run.devices.append(device);
            run.exchanges.append(
                {"dev",
                 0,
                 QString(R"({"result": {"aiGain": %1, "bEnable": true}})").arg(parts.at(2)),
                 QString(R"({"param": {"channelid": 0, "audioAttr": {"aiGain": %1, "bEnable": true}}})")
                     .arg(parts.at(3)),
                 {}});
            return run;
        };
        QStringList texts;
        const auto compared =
            compareRuns(runOf(first), runOf(second), ParameterTexts(form.get(), *Families::find("audio")));
        const QStringList states{"OutcomesDiffer", "ValuesDiffer", "OnlyInFirst", "OnlyInSecond", "Same"};
        for (const ComparedDevice &device : compared)
            texts.append(
                QStringList{states.at(device.state), device.read.section(": ", 1), device.written.section(": ", 1)}
                    .join('|'));
        QTEST(texts.join(' '), "expected");
    }

    /// Keyboard and assistive technology: everything has a name, and no two things one mnemonic.
    void everythingHasANameAndAKeyOfItsOwn()
    {
        RunsSite site;
        site.run("{'aiGain': 20}", site.devIds);
        const QString run = site.run("{'aiGain': 33}", site.devIds);
        QVERIFY(site.open(run));
        QList<QWidget *> windows{site.window, site.check("verify", "runVerify", 6)};
        QVERIFY(windows.last());
        windows.append(site.check("undo", "runUndo", 6));
        child<QTableView>(site.window, "runs")->selectAll();
        child(site.window, "compareRuns")->click();
        windows.append(child<QWidget>(site.window, "runComparison"));
        QTRY_COMPARE(column(windows.last(), "compared", 7).filter(QRegularExpression(": 20 → 33$")).size(), 6);
        for (const QWidget *window : qAsConst(windows)) {
            QVERIFY(window);
            QMap<QString, QString> texts;
            const auto widgets = window->findChildren<QWidget *>();
            for (QWidget *widget : widgets) {
                if (widget->window() != window || widget->isHidden())
                    continue;
                if (widget->focusPolicy() & Qt::TabFocus)
                    QVERIFY2(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty(),
                             qPrintable(widget->objectName()));
                const QString key = QKeySequence::mnemonic(widget->property("text").toString()).toString();
                QVERIFY2(key.isEmpty() || !texts.contains(key), qPrintable(key + window->objectName()));
                texts.insert(key, key);
            }
        }
    }
};

ORDA_TEST_MAIN(RunsTest)
#include "runs_test.moc"
