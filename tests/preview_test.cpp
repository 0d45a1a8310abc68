#include "support/FleetOf.h"
#include "support/OrdaTest.h"
#include "support/Store.h"

#include "client/compare/CompareWindow.h"
#include "client/form/Families.h"
#include "client/form/FormTicks.h"
#include "client/form/PageLoader.h"
#include "client/preview/PreviewWindow.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "fleet/EmbeddedFleet.h"
#include "journal/JournalTransport.h"

#include <QtWidgets>
#include <families/Families.h>
#include <orda_base/BaseForm.h>
#include <orda_base/DisabledWaitingWt.h>
#include <orda_data/DevsMgrData.h>
#include <shell/BatchCfgInit.h>

using namespace orda_client;
using device_fleet::Fault;

namespace {

template <typename Widget>
Widget *child(const QWidget &window, const char *name)
{
    return window.findChild<Widget *>(name);
}

void click(const QWidget &window, const char *name)
{
    child<QAbstractButton>(window, name)->click();
}

/// What a table shows in a column, sorted.
QStringList column(const QWidget &window, const char *table, int number)
{
    const QAbstractItemModel *model = child<QTableView>(window, table)->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, number).data().toString());
    texts.sort();
    return texts;
}

std::unique_ptr<QWidget> newForm()
{
    return std::unique_ptr<QWidget>(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
}

/// A fleet, and the form on the page of the on-screen display with all devices ticked.
struct Site
{
    Site(int devices, int listed, const QStringList &refusing = {})
        : fleet(fleetOf(devices))
    {
        fleet.start();
        for (const QString &devId : refusing)
            fleet.setFault(devId, "chnosd_get_param", {Fault::ErrorCode});
        orda_data::DevsMgrData::instance().updateDevs(fleet.inventory());
        session.watchPages(form.get());
        click(*form, "osd_param");
        isReady = QTest::qWaitFor([&] { return FormTicks::listedIn(form.get()).size() == listed; }, 20'000);
        click(*form, "selAll");
        all = FormTicks::of(form.get()).devIds;
    }
    ~Site() { clearStore(); }

    FormPage page() const { return FormPage::shown(form.get()); }
    void configure(const QStringList &devIds) const
    {
        FormTicks::tickExactly(form.get(), devIds);
        page().press();
        dismissDialogs();
        FormTicks::tickExactly(form.get(), all);
    }
    QJsonObject held(const QString &devId) const
    {
        return fleet.dump()["devices"].toObject()[devId].toObject()["osd"].toObject();
    }
    /// How many settings of the standard devices have with another value, or lack; those without any are left out.
    QMap<QString, int> differing(QJsonObject standard, bool withLacking = true) const
    {
        QMap<QString, int> counts;
        for (const QString &devId : all)
            for (const QString &key : page().values.keys())
                if (standard.contains(key) && (withLacking || held(devId).contains(key)))
                    counts[devId] += held(devId)[key] != standard[key] ? 1 : 0;
        for (const QString &devId : counts.keys(0))
            counts.remove(devId);
        return counts;
    }
    /// Opens a window, and has it read the devices.
    template <typename Window>
    std::unique_ptr<Window> open(void (Window::*read)())
    {
        auto window = std::make_unique<Window>(&session, form.get(), &settings, nullptr);
        window->show();
        (window.get()->*read)();
        return window;
    }

    device_fleet::EmbeddedFleet fleet;
    ClientSession session{orda_journal::HistoryOptions()};
    ClientSettings settings{QDir::temp().filePath("preview_test.ini")};
    std::unique_ptr<QWidget> form = newForm();
    QStringList all;
    bool isReady = false;
};

bool isRead(const QWidget &window)
{
    return QTest::qWaitFor([&] { return !child<QWidget>(window, "stopReading")->isVisible(); }, 20'000);
}

/// Another state of a page, as a user could make it.
void shuffle(const FormPage &page, QRandomGenerator *random)
{
    for (const FormPage::Member &member : page.members) {
        for (const auto &box : member.boxes)
            box->setChecked(random->bounded(3) > 0);
        if (auto *combo = qobject_cast<QComboBox *>(member.editor))
            combo->setCurrentIndex(random->bounded(combo->count()));
        if (member.editor) {
            member.editor->setProperty("value", random->bounded(101)); // each has one of these
            member.editor->setProperty("checked", random->bounded(2) > 0);
        }
        if (auto *edit = qobject_cast<QLineEdit *>(member.editor))
            edit->setText(random->bounded(3) > 0 ? QString::number(random->bounded(65536)) : QString());
    }
}

} // namespace

/// What a run would do, and how devices differ from a standard: both before anything is written.
class PreviewTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void accountsForEachDevice()
    {
        Site site(30, 28, {"dev-0003", "dev-0007"});
        QVERIFY(site.isReady);
        const QJsonObject values = site.page().values;
        site.configure(site.all.mid(10, 2)); // so that these have the values already
        const QJsonObject before = site.fleet.dump();
        const auto window = site.open(&PreviewWindow::preview);
        const QString gone = site.all.at(5); // after it was ticked
        orda_data::DevsMgrData::instance().setDevStatus(gone, vms_sdk::DevOffline);
        QVERIFY(isRead(*window));
        QCOMPARE(site.fleet.dump(), before); // nothing was written

        QMap<QString, int> changing = site.differing(values, false), others = site.differing(values),
                           having = site.differing({{"bLargeOSD", "neither"}}, false);
        for (const QString &devId : {gone, QString("dev-0003"), QString("dev-0007")})
            QVERIFY(changing.remove(devId) + others.remove(devId) + having.remove(devId) >= 2);
        const int read = site.all.size() - 3;
        auto *list = child<QTableWidget>(*window, "planGroups");
        const QList<int> counts{28, changing.size(), read - others.size(), read - having.size(), 1, 2, 0};
        QMap<int, QStringList> shown; // what would change, or why nothing can
        for (int group = 0; group < counts.size(); ++group) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(group, 0)).center());
            shown[group] = column(*window, "plan", 5);
            QCOMPARE(list->item(group, 1)->text().toInt(), counts.at(group));
            QCOMPARE(shown[group].size(), counts.at(group));
        }
        QVERIFY(!shown[2].isEmpty() && !shown[3].isEmpty()
                && shown[3].filter("the device lacks Large Font") == shown[3]);
        QVERIFY(shown[4].at(0).startsWith("off line"));
        QCOMPARE(shown[5].filter("Failed to get osd parameters(-5)").size(), 2);
        const QString name = site.held(changing.firstKey())["channelName"].toString();
        QVERIFY(shown[1].join("/").contains("Name: " + name + " → HD IPC"));

        const QSignalSpy wanted(window.get(), &PreviewWindow::signalConfigure);
        click(*window, "configureChanging");
        PressedRun run{"osd", values, {}};
        for (const QString &devId : qAsConst(site.all)) // in the order of the list
            run.devIds += changing.contains(devId) ? QStringList(devId) : QStringList();
        QCOMPARE(wanted.value(0).value(0).value<PressedRun>(), run);
        site.configure(changing.keys());
        QVERIFY(!site.differing(values, false).contains(changing.lastKey()));
        QVERIFY(!child<QWidget>(*window, "configureChanging")->isEnabled()); // a plan from before the run
    }

    /// A plan that is not whole, or not of now, is not pressed.
    void offersOnlyWhatHolds()
    {
        Site site(5, 5);
        const auto window = site.open(&PreviewWindow::preview);
        const auto *configure = child<QPushButton>(*window, "configureChanging");
        const auto says = [&](const char *label, const char *text) {
            return child<QLabel>(*window, label)->text().contains(text) && !configure->isEnabled();
        };
        const auto previewSays = [&](const char *text) {
            window->preview();
            return isRead(*window) && says("empty", text);
        };
        QTRY_VERIFY(configure->isEnabled());
        auto *name = child<QLineEdit>(*site.page().page, "nameParam");
        name->setText("Another");
        const QSignalSpy wanted(window.get(), &PreviewWindow::signalConfigure);
        click(*window, "configureChanging"); // at once
        QVERIFY(wanted.isEmpty() && says("notice", "page has changed"));
        name->setText("HD IPC");
        QTRY_VERIFY(configure->isEnabled());

        site.fleet.setFault("dev-0002", "chnosd_get_param", {Fault::NoAnswer});
        click(*window, "previewAgain");
        QTRY_COMPARE(child<QTableWidget>(*window, "planGroups")->item(6, 1)->text(), QString("1")); // it is silent
        QVERIFY(!configure->isEnabled());
        click(*window, "stopReading");
        QVERIFY(says("notice", "was stopped"));
        QCOMPARE(site.session.journal()->beginReading(), QString()); // somebody else has the turn
        QVERIFY(previewSays("were not read"));
        site.session.journal()->end();
        FormTicks::tickExactly(site.form.get(), {});
        QVERIFY(previewSays("No device is ticked"));
        click(*site.page().page, "allParams");
        QVERIFY(previewSays("no parameter is ticked"));
    }

    void comparesWithAStandard()
    {
        Site site(30, 28);
        QVERIFY(site.isReady);
        const QJsonObject values = site.page().values;
        site.configure(site.all.mid(0, 3)); // these have the page's values
        const auto window = site.open(&CompareWindow::compare);
        QVERIFY(isRead(*window));
        const auto isCompared = [&](const QJsonObject &standard) {
            QStringList numbers;
            for (const QString &devId : qAsConst(site.all))
                numbers.append(QString::number(site.differing(standard).value(devId)));
            numbers.sort();
            return numbers == column(*window, "settings", 0);
        };
        QVERIFY(isCompared(values));
        const QString model = site.all.at(9);
        auto *search = child<QWidget>(*window, "compareSearch")->findChild<QLineEdit *>();
        search->setText(orda_data::DevsMgrData::instance().getDevInfoById(model).serialNumber);
        child<QTableView>(*window, "settings")->selectRow(0);
        click(*window, "takeModel");
        search->clear();
        QVERIFY(isCompared(site.held(model)));
        click(*window, "onlyDifferent");
        click(*window, "tickDifferent");
        const QStringList differing = site.differing(site.held(model)).keys();
        QCOMPARE(column(*window, "settings", 0).size(), differing.size());
        QStringList ticked = FormTicks::of(site.form.get()).devIds;
        ticked.sort();
        QCOMPARE(ticked, differing);

        // Of what the model holds the page gets what it can set, and nothing else stays ticked.
        QJsonObject expected;
        for (const QString &key : values.keys())
            if (site.held(model).contains(key))
                expected.insert(key, site.held(model)[key]);
        click(*window, "saveProfile");
        auto *asks = window->findChild<QInputDialog *>("profileName");
        asks->setTextValue("Gate");
        asks->accept();
        QCOMPARE(ClientSettings(QDir::temp().filePath("preview_test.ini")).profiles("osd").value("Gate"), expected);
        click(*window, "loadIntoPage");
        QCOMPARE(site.page().values, expected);
        click(*window, "forgetProfile");
        window->findChild<QMessageBox *>("forgetQuestion")->buttons().at(0)->click();
        QVERIFY(site.settings.profiles("osd").isEmpty());
    }

    void loadsAnyStateOfAPage_data() { seeds(20); }
    void loadsAnyStateOfAPage()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const auto form = newForm();
        for (const Family &entry : families()) {
            const auto &family = *orda_batchCfg::Families::find(entry.name);
            const QJsonObject initial = FormPage::of(form.get(), family).values;
            shuffle(FormPage::of(form.get(), family), &random);
            const QJsonObject changed = FormPage::of(form.get(), family).values;
            shuffle(FormPage::of(form.get(), family), &random);
            for (const QJsonObject &values : {changed, initial}) {
                QVERIFY2(PageLoader(form.get(), family).load(values).isWhole(), qPrintable(entry.name));
                QCOMPARE(FormPage::of(form.get(), family).values, values);
            }
        }
    }

    void namesWhatAPageCannotShow_data()
    {
        columns<QString, QString, QString, QString>({"family", "values", "left", "notSet"});
        rowsFrom("page_values.txt");
    }
    void namesWhatAPageCannotShow()
    {
        QFETCH(QString, family);
        QFETCH(QString, values);
        QFETCH(QString, left);
        QFETCH(QString, notSet);
        const auto json = [](const QString &text) { return QJsonDocument::fromJson(text.toUtf8()).object(); };
        const auto form = newForm();
        const auto &wanted = *orda_batchCfg::Families::find(family);
        const auto sent = [&] { return FormPage::of(form.get(), wanted).values; };
        const QJsonObject before = sent();
        auto run = std::make_unique<orda_base::DisabledWaitingWt>(form.get(), QString());
        run->show();
        QVERIFY(!PageLoader(form.get(), wanted).load(json(values)).refusal.isEmpty());
        QCOMPARE(sent(), before);
        run.reset();
        const auto loaded = PageLoader(form.get(), wanted).load(json(values));
        QCOMPARE(loaded.notSet.join(' '), notSet);
        QCOMPARE(loaded.besides, QStringList());
        QCOMPARE(sent(), json(left)); // nothing else
    }
};

ORDA_TEST_MAIN(PreviewTest)

#include "preview_test.moc"
