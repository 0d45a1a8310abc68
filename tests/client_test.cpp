#include "support/OrdaTest.h"

#include "client/app/ClientWindow.h"
#include "client/record/FailedDevices.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryOptions.h"

#include <QtWidgets>
#include <orda_base/BaseForm.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <vms_client_sdk/ClientSdk.h>

using namespace orda_client;
using namespace std::chrono_literals;

namespace {

/// What stands in the status bar, and anything else that a window's labels say.
QString said(const QWidget *widget)
{
    QStringList texts;
    const auto labels = widget->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    return texts.join('\n');
}

} // namespace

/// The client's own window around the form.
class ClientTest : public OrdaTest
{
    Q_OBJECT

private slots:
    /// The screen of these tests has 800 x 800 pixels, which is less than the form needs.
    void opensOnASmallScreen()
    {
        ClientSession session(orda_journal::HistoryOptions{});
        ClientSettings settings({});
        ClientWindow window(&session, &settings);
        QCOMPARE(session.startDemo(1, {}), QString());
        window.show();
        const QRect screen = window.screen()->availableGeometry();
        QVERIFY(screen.adjusted(0, 0, -1, -1).contains({screen.topLeft(), window.size()})); // with room for a frame
        const auto *form = window.findChild<orda_base::BaseForm *>();
        const auto *area = qobject_cast<QScrollArea *>(form->parentWidget()->parentWidget());
        QTRY_VERIFY(area->horizontalScrollBar()->maximum() > 0);
        QVERIFY(form->width() >= form->minimumSizeHint().width());
        QCOMPARE(area->horizontalScrollBar()->maximum() + area->viewport()->width(), form->width());
    }

    /// A device that stays away is dialled again and again; the summary of a run outlives that.
    void tellsChangesOnly()
    {
        ClientSession session(orda_journal::HistoryOptions{});
        ClientSettings settings({});
        ClientWindow window(&session, &settings);
        window.show();
        auto &store = orda_data::DevsMgrData::instance();
        QSignalSpy attempts(&orda_data::DataSignals::instance(), &orda_data::DataSignals::signalDevStatusChanged);
        vms_sdk::DevInfo dev;
        dev.id = "dev0";
        dev.name = "Cam 0";
        dev.ip = "127.0.0.1";
        dev.port = 1; // nobody listens there
        store.updateDevs({dev});
        emit orda_worker::AssistantSignals::instance().signalEventConfirmRaised({{}, {}, "The summary", {}});
        QTRY_VERIFY_WITH_TIMEOUT(attempts.count() >= 6, 20'000); // connecting, offline, three times
        QTest::qWait(150); // the bar is brought up to date every 100 ms
        QVERIFY(said(window.statusBar()).contains("The summary"));

        // Set each time: the transport may try the device between this and the bar's next look.
        QTRY_VERIFY(
            (store.setDevStatus(dev.id, vms_sdk::DevOnline), said(window.statusBar()).contains("Cam 0: online")));
        store.deleteDevs({dev.id});
    }

    void asksBeforeItClosesInMidRun()
    {
        QTemporaryFile faults;
        QVERIFY(faults.open());
        faults.write(R"({"faults": [{"devices": ["dev-0002"], "methods": ["ai_get_param"], "fault": "no-answer"}]})");
        faults.close();
        ClientSession session(orda_journal::HistoryOptions{});
        vms_sdk::ClientSdk::instance().setRequestTimeout(2s);
        ClientSettings settings({});
        ClientWindow window(&session, &settings);
        window.show();
        QCOMPARE(session.startDemo(2, faults.fileName()), QString());
        const auto *table = window.findChild<QTableWidget *>("devsTableWt");
        QTRY_COMPARE(table->rowCount(), 2);
        window.findChild<QCheckBox *>("selAll")->click();
        window.findChild<QAbstractButton *>("audio_param")->click();

        QString question;
        QTimer::singleShot(500ms, &window, [&] { // when the one device has answered
            window.close();
            if (const auto *dialog = window.findChild<QDialog *>("closeQuestion"))
                question = said(dialog);
        });
        const QWidget *page = window.findChild<QWidget *>("audioParametersPage");
        page->findChild<QAbstractButton *>("okBt")->click();
        QVERIFY2(question.contains("1 of 2 device(s) have not answered"), qPrintable(question));
        QVERIFY(window.isVisible());
        // The run has ended meanwhile: nothing is left to ask, and the summary stands there.
        QTRY_VERIFY(!window.findChild<QDialog *>("closeQuestion"));
        auto *summary = window.findChild<QDialog *>("eventConfirmDialog");
        QVERIFY(summary && said(summary).contains("success:1, failure:1"));
        summary->reject();
        QVERIFY(window.close());
    }
};

ORDA_TEST_MAIN(ClientTest)

#include "client_test.moc"
