#include "support/FormFixture.h"
#include "support/OrdaTest.h"
#include "support/PropertyWatch.h"

#include <orda_base/DisabledWaitingWt.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/EventConfirmInfo.h>
#include <run/BatchCfgContact.h>
#include <run/ParamsCfgTask.h>

#include <QAccessible>
#include <QDesktopServices>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>

using namespace std::chrono_literals;
using orda_worker::AssistantSignals;
using Request = ScriptedTransport::Request;

namespace {

QStringList healthy(const Request &request)
{
    return {answer(request.method(), {{"bEnable", true}, {"aoGain", 3}})};
}

QString recordPath()
{
    return QDir::tempPath() + "/vms_audio_params_batch_cfg_record.txt";
}

// The entries of the record file as it lies on the disk now.
QStringList recordEntries()
{
    QFile file(recordPath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split("\n\n", Qt::SkipEmptyParts)
                                          : QStringList();
}

// Runs a step in the midst of a run, when the condition holds; a run that never gets there is ended by its time-outs.
template <typename Condition, typename Step>
void onceInRun(QObject *context, Condition condition, Step step)
{
    auto *timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, condition, step] {
        if (condition()) {
            timer->deleteLater();
            timer->stop();
            step();
        }
    });
    timer->start(2ms);
}

} // namespace

/// A run from the press of Configure to the summary, over the real form, and what may happen to it meanwhile.
class RunTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        QFile::remove(recordPath());
        m_openedUrls.clear();
        const auto *assistant = &AssistantSignals::instance();
        m_summaries = std::make_unique<QSignalSpy>(assistant, &AssistantSignals::signalEventConfirmRaised);
        m_alerts = std::make_unique<QSignalSpy>(assistant, &AssistantSignals::signalMessageAlerted);
    }

    void asksForParameters()
    {
        const FormFixture f(1, healthy);
        f.tickAll();
        QWidget *page = f.page("audioParametersPage");
        page->findChild<QCheckBox *>("allParams")->click();
        page->findChild<QAbstractButton *>("okBt")->setEnabled(true); // pressed already when the last parameter went
        f.configureAudio();
        QCOMPARE(m_alerts->count(), 1);
        QCOMPARE(m_alerts->at(0).at(1).toString(), "Please select the parameters to be configured");
        QVERIFY(f.transport->requests.isEmpty() && !QFile::exists(recordPath()));
        QCOMPARE(m_summaries->count(), 0);
    }

    void configuresTheTickedDevicesAndReports()
    {
        const FormFixture f(3, healthy);
        f.tickAll();
        f.table()->item(1, 0)->setCheckState(Qt::Unchecked);
        QWidget *page = f.page("audioParametersPage");
        auto *report = page->findChild<QAbstractButton *>("reportBt");
        QVERIFY(!report->isVisibleTo(page));
        const auto overlay = [&f] { return f.form->findChild<orda_base::DisabledWaitingWt *>(); };
        QString progress;
        onceInRun(f.form, overlay, [&] { progress = overlay()->description(); });

        f.configureAudio();

        QCOMPARE(progress, "Configuring...");
        QCOMPARE(m_summaries->count(), 1);
        QCOMPARE(summary().text, summaryOf(2, 0));
        QCOMPARE(summary().buttons, (QStringList{"Detail", "Cancel"}));
        QVERIFY(report->isVisibleTo(page));
        QVERIFY(!overlay() || !overlay()->isVisible());

        QSet<QString> devices;
        for (const Request &request : qAsConst(f.transport->requests))
            devices.insert(request.devId);
        QCOMPARE(devices, (QSet<QString>{"dev0", "dev2"}));

        const QStringList entries = recordEntries();
        QCOMPARE(entries.size(), 2);
        const QRegularExpression format(
            "^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d {4}SN0 {4}10\\.0\\.0\\.1 {8} {4}success {16}Cam 0$");
        QVERIFY2(format.match(entries.at(0)).hasMatch(), qPrintable(entries.at(0)));
    }

    void detailOpensTheRecordOfTheLatestRunOnly()
    {
        QDesktopServices::setUrlHandler(QString(), this, "slotUrlOpened");
        const FormFixture f(1, healthy);
        f.tickAll();
        emit AssistantSignals::instance().signalEventConfirmOperBtClicked(QString(), 0); // a dialog of the client's own
        f.configureAudio();
        f.configureAudio();
        QCOMPARE(m_summaries->count(), 2);
        auto &assistant = AssistantSignals::instance();
        emit assistant.signalEventConfirmOperBtClicked(summary(0).uuid, 0); // replaced by the second run
        emit assistant.signalEventConfirmOperBtClicked(summary(1).uuid, 1);
        QVERIFY(m_openedUrls.isEmpty());
        emit assistant.signalEventConfirmOperBtClicked(summary(1).uuid, 0);
        QCOMPARE(m_openedUrls, QList<QUrl>{QUrl(recordPath())});
        QCOMPARE(recordEntries().size(), 1); // the last run's only
        QDesktopServices::unsetUrlHandler(QString());
    }

    void everyResultIsWrittenAndRenewsTheOthers()
    {
        // dev0 is refused late in the waiting time of dev1, which then has a whole one again.
        const FormFixture f(2, silent, 500ms);
        f.tickAll();
        QTimer::singleShot(400ms, f.form,
                           [&f] { emit f.transport->answered(f.transport->requests.at(0).requestId, "no json"); });
        struct flock lock = {};
        onceInRun(
            f.form, [] { return !recordEntries().isEmpty(); },
            [&lock] { // of a client without locks; reading the record in this process has not given ours up
                QFile file(recordPath());
                QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Append));
                file.write("from elsewhere\n\n");
                lock.l_type = F_WRLCK;
                QCOMPARE(::fcntl(file.handle(), F_GETLK, &lock), 0);
            });
        QElapsedTimer clock;
        clock.start();
        f.configureAudio();
        QVERIFY2(clock.elapsed() >= 850, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(lock.l_type != F_UNLCK);
        const QStringList entries = recordEntries(); // as they arrived
        QCOMPARE(entries.size(), 3);
        QVERIFY(entries.at(0).contains("Failed to parse json data"));
        QCOMPARE(entries.at(1), "from elsewhere");
        QCOMPARE(QFile::permissions(recordPath()) & 0x77, 0); // nobody else's
    }

    void secondPressStartsNothingAndSaysSo()
    {
        const FormFixture f(5, healthy);
        f.tickAll();
        auto *okBt = f.page("audioParametersPage")->findChild<QAbstractButton *>("okBt");
        auto *otherBt = f.page("osdParamsCfgPage")->findChild<QAbstractButton *>("okBt");
        onceInRun(
            f.form, [&] { return !f.transport->requests.isEmpty(); },
            [okBt, otherBt] {
                okBt->click();
                QTest::mouseClick(okBt, Qt::LeftButton);
                QTest::keyClick(okBt, Qt::Key_Space);
                QAccessible::queryAccessibleInterface(okBt)->actionInterface()->doAction(
                    QAccessibleActionInterface::pressAction());
                otherBt->click(); // and of another page
            });
        f.configureAudio();
        QCOMPARE(m_summaries->count(), 1);
        QCOMPARE(m_alerts->count(), 2); // the presses that the overlay cannot hold back
        QCOMPARE(m_alerts->at(1).at(1).toString(), "A configuration is under way. Please wait until it has ended.");
        QCOMPARE(f.transport->requests.size(), 5 * 4);
        f.configureAudio(); // and the next run is free to start
        QCOMPARE(m_summaries->count(), 2);
    }

    // A watcher sees a run before anything is asked or shown, and may decline it: then all is as if nobody had pressed.
    void watcherMayDeclineARun()
    {
        const FormFixture f(2, healthy);
        f.tickAll();
        f.configureAudio();
        QWidget *page = f.page("audioParametersPage");
        const QVariant entryEnds = page->property("recordEntryEnds");
        const QStringList entries = recordEntries();
        f.transport->requests.clear();

        enum
        {
            Decline,
            Allow,
            DeletePage
        } reply = Decline;
        QVariantList announced;
        PropertyWatch watch(page, "run", [&](const QVariant &run) {
            announced.append(run);
            QVERIFY(f.transport->requests.isEmpty() || !run.isValid());
            const auto *overlay = f.form->findChild<orda_base::DisabledWaitingWt *>();
            QVERIFY(!overlay || !overlay->isVisible());
            if (run.isValid() && reply == Decline)
                page->setProperty("runRefused", "not now");
            if (run.isValid() && reply == DeletePage)
                delete page;
        });
        f.configureAudio();
        QCOMPARE(announced.size(), 2);
        const QVariantMap run = announced.at(0).toMap();
        QCOMPARE(run.value("family").toString(), "audio");
        QCOMPARE(run.value("devIds").toStringList(), (QStringList{"dev0", "dev1"}));
        QCOMPARE(run.value("values").toJsonObject().value("aiGain"), QJsonValue(50));
        QVERIFY(!announced.at(1).isValid());
        QVERIFY(f.transport->requests.isEmpty());
        QCOMPARE(recordEntries(), entries);
        QCOMPARE(page->property("recordEntryEnds"), entryEnds);
        QCOMPARE(m_summaries->count(), 1);

        reply = Allow;
        f.configureAudio();
        QCOMPARE(summary().text, summaryOf(2, 0));
        QCOMPARE(announced.size(), 4);
        QVERIFY(!page->property("run").isValid() && !page->property("runRefused").isValid());

        reply = DeletePage;
        f.transport->requests.clear();
        f.configureAudio();
        QVERIFY(!f.page("audioParametersPage") && f.transport->requests.isEmpty());
    }

    void formMayGoAtAnyMomentOfARun_data()
    {
        // Class of the widget that is deleted, none: the form is closed; requests that have been sent by then.
        columns<QString, int>({"what", "requests"});
        for (const char *what :
             {"orda_batchCfg::BatchCfgForm", "QStackedWidget", "orda_batchCfg::AudioParamsCfgPage", ""}) {
            // All reads out, in the first and the last pause before a write, waiting for the last answer.
            for (const int requests : {3, 4, 11, 12})
                row(qPrintable(QString("%1, %2").arg(what).arg(requests)), what, requests);
        }
    }

    void formMayGoAtAnyMomentOfARun()
    {
        QFETCH(QString, what);
        QFETCH(int, requests);
        const FormFixture f(3, healthy);
        f.tickAll();
        const bool isFormDeleted = what.endsWith("Form");
        QWidget *page = f.page("audioParametersPage");
        QObject context;
        // From the event loop, right after the request that was waited for.
        connect(f.transport, &ScriptedTransport::sent, &context, [&](int count) {
            if (count != requests)
                return;
            QTimer::singleShot(0, &context, [&] {
                QWidget *widget = page;
                while (widget && !widget->inherits(what.toLatin1()))
                    widget = widget->parentWidget();
                widget ? delete widget : void(f.form->close());
            });
        });
        f.configureAudio();
        QCOMPARE(m_summaries->count(), what.isEmpty() ? 1 : 0);
        QCOMPARE(f.form.isNull(), isFormDeleted);
        QCOMPARE(orda_batchCfg::BatchCfgContact::instance().form() == nullptr, isFormDeleted);
        QCOMPARE(orda_batchCfg::BatchCfgContact::instance().checkedDevIds().isEmpty(), isFormDeleted);
        if (!isFormDeleted)
            QTRY_VERIFY(!f.form->findChild<orda_base::DisabledWaitingWt *>());
        const int before = m_summaries->count();
        const FormFixture next(1, healthy);
        next.tickAll();
        next.configureAudio();
        QCOMPARE(m_summaries->count(), before + 1);
    }

    void quittingEndsARunQuietly()
    {
        const FormFixture f(
            4, [](const Request &request) { return request.devId == "dev0" ? healthy(request) : silent(request); });
        f.tickAll();
        onceInRun(
            f.form, [] { return recordEntries().size() == 1; }, [] { QCoreApplication::quit(); });
        bool isBack = false;
        QTimer::singleShot(0, f.form, [&] {
            f.configureAudio();
            isBack = true;
        });
        QApplication::exec();
        QVERIFY(isBack);
        QCOMPARE(m_summaries->count(), 0);
        QVERIFY(f.page("audioParametersPage")->findChildren<orda_batchCfg::ParamsCfgTask *>().isEmpty());
        QTRY_VERIFY(!f.form->findChild<orda_base::DisabledWaitingWt *>());
        QCOMPARE(recordEntries().size(), 1);
    }

    void lostRecordIsSaidByThePage_data()
    {
        columns<QString, QString>({"tmpdir", "said"}); // empty: the usual one
        row("link", "", "cannot open the record file .*: it is a symbolic link");
        row("no directory", "/no/such/directory", R"(cannot open .*"/no/such/directory" is missing)");
        row("relative directory", ".", R"(cannot open .*"\." is not an absolute path)");
        row("no room for the second entry", "", "cannot write the record file .*: File too large");
        row("removed in mid-run", "", "the record file .* was removed or replaced during the run");
    }

    void lostRecordIsSaidByThePage()
    {
        QFETCH(QString, tmpdir);
        QFETCH(QString, said);
        const QString what = QString::fromLatin1(QTest::currentDataTag());
        const QByteArray usual = qgetenv("TMPDIR");
        const QString target = QDir::tempPath() + "/precious.txt";
        QFile file(target);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("keep me") > 0);
        file.close();
        if (what == "link")
            QVERIFY(QFile::link(target, recordPath()));
        const QString name = QFileInfo(recordPath()).fileName();
        const QTemporaryDir here;
        QVERIFY(QDir::setCurrent(here.path()));
        if (!tmpdir.isEmpty())
            qputenv("TMPDIR", tmpdir.toLatin1());
        expectWarning(said);

        const FormFixture f(2, healthy);
        f.tickAll();
        struct rlimit limit = {};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
        const struct rlimit oneEntry = {100, limit.rlim_max};
        if (what.startsWith("no room"))
            ::setrlimit(RLIMIT_FSIZE, &oneEntry);
        if (what.startsWith("removed"))
            onceInRun(
                f.form, [] { return QFile::exists(recordPath()); }, [] { QFile::remove(recordPath()); });
        f.configureAudio();
        ::setrlimit(RLIMIT_FSIZE, &limit);
        qputenv("TMPDIR", usual);
        QDir::setCurrent(QDir::tempPath());

        QCOMPARE(summary().text, summaryOf(2, 0));
        const QWidget *page = f.page("audioParametersPage");
        QVERIFY(page->property("recordError").toString().contains(QRegularExpression(said)));
        const int kept = what.startsWith("no room") ? 1 : 0; // and no part of the second
        QCOMPARE(page->property("recordEntryEnds").value<QVector<int>>().size(), kept);
        if (what != "link")
            QCOMPARE(recordEntries().size(), kept);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("keep me"));
        QVERIFY(!QFile::exists('/' + name) && !QFile::exists(here.filePath(name)));
        QFile::remove(recordPath());
        if (tmpdir.isEmpty()) {
            f.configureAudio(); // the next run has its record
            QCOMPARE(page->property("recordError").toString(), QString());
            QCOMPARE(recordEntries().size(), 2);
        }
    }

    void deviceThatLeavesTheStoreIsStillReported()
    {
        const FormFixture f(2, silent, 200ms);
        auto dev = FormFixture::device(0);
        dev.name = "%1 %5";
        dev.ip = "an address of more than 16 characters";
        orda_data::DevsMgrData::instance().updateDevs({dev});
        f.tickAll();
        onceInRun(
            f.form, [&] { return !f.transport->requests.isEmpty(); },
            [] { orda_data::DevsMgrData::instance().deleteDevs({"dev1"}); });
        f.configureAudio();
        QCOMPARE(summary().text, summaryOf(0, 2));
        const QStringList entries = recordEntries();
        const QString timeout = "    set audio parameters time out                ";
        QVERIFY2(entries.at(0).endsWith("    SN0    " + dev.ip + timeout + dev.name), qPrintable(entries.at(0)));
        QVERIFY2(entries.at(1).endsWith("        " + QString(16, ' ') + timeout), qPrintable(entries.at(1)));
    }

    void slotUrlOpened(const QUrl &url) { m_openedUrls.append(url); }

private:
    std::unique_ptr<QSignalSpy> m_summaries, m_alerts;
    QList<QUrl> m_openedUrls;

    orda_worker::EventConfirmInfo summary(int run = 0) const
    {
        return m_summaries->value(run).value(0).value<orda_worker::EventConfirmInfo>();
    }
};

ORDA_TEST_MAIN(RunTest)
#include "run_test.moc"
