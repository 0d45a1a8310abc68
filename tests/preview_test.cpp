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
    /// @param listed how many of the devices the list has in the end: some may not be configured
    Site(int devices, int listed, const QStringList &refusing = {})
        : fleet(fleetOf(devices))
    {
        fleet.start();
        for (const QString &devId : refusing)
            fleet.setFault(devId, "chnosd_get_param", {Fault::ErrorCode});
        orda_data::DevsMgrData::instance().updateDevs(fleet.inventory());
        session.watchPages(form.get());
        click(*form, "osd_param");
        if (!QTest::qWaitFor([&] { return FormTicks::listedIn(form.get()).size() == listed; }, 20'000))
            qFatal("%d devices are listed", FormTicks::listedIn(form.get()).size());
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
    /// How many settings of the standard a device has with another value, or also lacks.
    int differences(const QString &devId, const QJsonObject &standard, bool withLacking = true) const
    {
        const QJsonObject device = held(devId);
        const QStringList keys = page().values.keys();
        return int(std::count_if(keys.begin(), keys.end(), [&](const QString &key) {
            return standard.contains(key) && (withLacking || device.contains(key)) && device[key] != standard[key];
        }));
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
        else if (auto *edit = qobject_cast<QLineEdit *>(member.editor))
            edit->setText(random->bounded(3) > 0 ? QString::number(random->bounded(65536)) : QString());
        else if (auto *spinBox = qobject_cast<QSpinBox *>(member.editor))
            spinBox->setValue(random->bounded(spinBox->minimum(), spinBox->maximum()));
        else if (auto *slider = qobject_cast<QAbstractSlider *>(member.editor))
            slider->setValue(random->bounded(101));
        else if (auto *button = qobject_cast<QAbstractButton *>(member.editor))
            button->setChecked(random->bounded(2) > 0);
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
        const QJsonObject values = site.page().values;
        site.configure(site.all.mid(10, 2)); // so that these have the values already
        const QJsonObject before = site.fleet.dump();
        const auto window = site.open(&PreviewWindow::preview);
        const QString gone = site.all.at(5); // after it was ticked
        orda_data::DevsMgrData::instance().setDevStatus(gone, vms_sdk::DevOffline);
        QVERIFY(isRead(*window));
        QCOMPARE(site.fleet.dump(), before); // nothing was written

        QStringList changing;
        int whole = 0, lacking = 0;
        for (const QString &devId : qAsConst(site.all)) {
            if (devId == gone || devId == "dev-0003" || devId == "dev-0007")
                continue;
            whole += site.differences(devId, values) == 0 ? 1 : 0;
            lacking += site.held(devId).contains("bLargeOSD") ? 0 : 1;
            if (site.differences(devId, values, false) > 0)
                changing.append(devId);
        }
        QVERIFY(whole > 0 && lacking > 0);
        auto *list = child<QTableWidget>(*window, "planGroups");
        const QList<int> counts{28, changing.size(), whole, lacking, 1, 2, 0};
        QMap<int, QStringList> shown; // what would change, or why nothing can
        for (int group = 0; group < counts.size(); ++group) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(group, 0)).center());
            shown[group] = column(*window, "plan", 5);
            QCOMPARE(list->item(group, 1)->text().toInt(), counts.at(group));
            QCOMPARE(shown[group].size(), counts.at(group));
        }
        QCOMPARE(shown[3].filter("the device lacks Large Font").size(), lacking);
        QVERIFY(shown[4].at(0).startsWith("off line"));
        QCOMPARE(shown[5].filter("Failed to get osd parameters(-5)").size(), 2);
        list->selectRow(0);
        const QString name = site.held(changing.at(0))["channelName"].toString();
        const QString serial = orda_data::DevsMgrData::instance().getDevInfoById(changing.at(0)).serialNumber;
        child<QWidget>(*window, "previewSearch")->findChild<QLineEdit *>()->setText(serial);
        QVERIFY(column(*window, "plan", 5).join("/").contains("Name: " + name + " → HD IPC"));

        const QSignalSpy wanted(window.get(), &PreviewWindow::signalConfigure);
        click(*window, "configureChanging");
        QCOMPARE(wanted.value(0).value(0).value<PressedRun>(), (PressedRun{"osd", values, changing}));
        site.configure(changing);
        for (const QString &devId : qAsConst(changing))
            QCOMPARE(site.differences(devId, values, false), 0);
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
        QCOMPARE(wanted.count(), 0);
        QVERIFY(says("notice", "page has changed"));
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
        auto *search = child<QWidget>(*site.form, "searchBox")->findChild<QLineEdit *>();
        search->setText("no such device");
        QTRY_VERIFY(FormTicks::of(site.form.get()).devIds.isEmpty());
        QVERIFY(previewSays("hidden by the search"));
        search->clear();
        FormTicks::tickExactly(site.form.get(), {});
        QVERIFY(previewSays("No device is ticked"));
        click(*site.page().page, "allParams");
        QVERIFY(previewSays("no parameter is ticked"));
    }

    void comparesWithAStandard()
    {
        Site site(30, 28);
        const QJsonObject values = site.page().values;
        site.configure(site.all.mid(0, 3)); // these have the page's values
        const auto window = site.open(&CompareWindow::compare);
        QVERIFY(isRead(*window));
        QStringList differing;
        const auto isCompared = [&](const QJsonObject &standard) {
            QStringList numbers;
            differing.clear();
            for (const QString &devId : qAsConst(site.all)) {
                numbers.append(QString::number(site.differences(devId, standard)));
                if (numbers.last() != "0")
                    differing.append(devId);
            }
            numbers.sort();
            return numbers == column(*window, "settings", 0);
        };
        QVERIFY(isCompared(values));
        auto *table = child<QTableView>(*window, "settings");
        table->selectRow(4);
        QString model; // the device of that row
        for (const QString &devId : qAsConst(site.all))
            if (orda_data::DevsMgrData::instance().getDevInfoById(devId).serialNumber
                == table->model()->index(4, 2).data().toString())
                model = devId;
        click(*window, "takeModel");
        QVERIFY(isCompared(site.held(model)));
        click(*window, "onlyDifferent");
        click(*window, "tickDifferent");
        QCOMPARE(column(*window, "settings", 0).size(), differing.size());
        QCOMPARE(FormTicks::of(site.form.get()).devIds, differing);

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
