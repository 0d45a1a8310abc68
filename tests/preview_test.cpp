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

namespace {

void click(const QWidget &window, const char *name)
{
    window.findChild<QAbstractButton *>(name)->click();
}

QStringList column(const QWidget &window, const char *table, int number)
{
    const QAbstractItemModel *model = window.findChild<QTableView *>(table)->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, number).data().toString());
    texts.sort();
    return texts;
}

/// The form on the page of the on-screen display, with all devices of a fleet ticked.
struct Site
{
    Site()
    {
        fleet.start();
        orda_data::DevsMgrData::instance().updateDevs(fleet.inventory());
        session.watchPages(form.get());
        click(*form, "osd_param");
        if (!QTest::qWaitFor([this] { return FormTicks::listedIn(form.get()).size() == 28; }, 20'000))
            qFatal("28 of the 30 devices can be configured");
        click(*form, "selAll");
        (all = FormTicks::of(form.get()).devIds).sort(); // they stand in the order in which they came on line
        values = page().values;
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
    /// By device how many settings of the standard it has with another value, or lacks; those without any are left out.
    QMap<QString, int> differing(const QJsonObject &standard, bool withLacking = true) const
    {
        QMap<QString, int> counts;
        const QStringList keys = values.keys();
        for (const QString &devId : all)
            for (const QString &key : keys)
                if (standard.contains(key) && held(devId)[key] != standard[key]
                    && (withLacking || held(devId).contains(key)))
                    ++counts[devId];
        return counts;
    }

    device_fleet::EmbeddedFleet fleet{fleetOf(30)};
    ClientSession session{orda_journal::HistoryOptions()};
    ClientSettings settings{QDir::temp().filePath("preview_test.ini")};
    std::unique_ptr<QWidget> form{orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm()};
    QStringList all;
    QJsonObject values; // of the page
};

bool isRead(const QWidget &window)
{
    return QTest::qWaitFor([&] { return window.findChild<QWidget *>("stopReading")->parentWidget()->isHidden(); },
                           20'000);
}

void shuffle(const FormPage &page, QRandomGenerator *random)
{
    for (const FormPage::Member &member : page.members) {
        for (const auto &box : member.boxes)
            box->setChecked(random->bounded(3) > 0);
        if (auto *combo = qobject_cast<QComboBox *>(member.editor))
            combo->setCurrentIndex(random->bounded(combo->count()));
        if (member.editor)
            member.editor->setProperty("value", random->bounded(101)); // of a spin box, too
        if (auto *button = qobject_cast<QAbstractButton *>(member.editor))
            button->setChecked(random->bounded(2) > 0);
        if (auto *edit = qobject_cast<QLineEdit *>(member.editor))
            edit->setText(random->bounded(3) > 0 ? QString::number(random->bounded(65536)) : QString());
    }
}

} // namespace

class PreviewTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void accountsForEachDevice()
    {
        Site site;
        site.fleet.setFault("dev-0003", "chnosd_get_param", {device_fleet::Fault::ErrorCode});
        site.configure(site.all.mid(10, 2)); // so that these have the values already
        const QJsonObject before = site.fleet.dump();
        PreviewWindow window(&site.session, site.form.get(), &site.settings, nullptr);
        window.show();
        window.preview();
        const QString gone = site.all.at(5); // after it was ticked
        orda_data::DevsMgrData::instance().setDevStatus(gone, vms_sdk::DevOffline);
        QVERIFY(isRead(window));
        QCOMPARE(site.fleet.dump(), before); // nothing was written

        QMap<QString, int> changing = site.differing(site.values, false), others = site.differing(site.values),
                           having = site.differing({{"bLargeOSD", "neither"}}, false);
        for (const QString &devId : {gone, QString("dev-0003")})
            QVERIFY(changing.remove(devId) + others.remove(devId) + having.remove(devId) >= 2);
        auto *list = window.findChild<QTableWidget *>("planGroups");
        const QList<int> counts{28, changing.size(), 26 - others.size(), 26 - having.size(), 1, 1, 0};
        QMap<int, QStringList> shown; // what would change, or why nothing can
        for (int group = 0; group < counts.size(); ++group) {
            list->selectRow(group);
            shown[group] = column(window, "plan", 5);
            QCOMPARE(list->item(group, 1)->text().toInt(), counts.at(group));
            QCOMPARE(shown[group].size(), counts.at(group));
        }
        QCOMPARE(shown[3].filter("the device lacks Large Font"), shown[3]);
        QVERIFY(shown[4].at(0).startsWith("off line"));
        QCOMPARE(shown[5], QStringList("Failed to get osd parameters(-5)"));
        QCOMPARE(shown[1].filter(QRegularExpression("Name: .* → HD IPC")).size(), changing.size());

        const QSignalSpy wanted(&window, &PreviewWindow::signalConfigure);
        click(window, "configureChanging");
        auto run = wanted.value(0).value(0).value<PressedRun>();
        run.devIds.sort();
        QCOMPARE(run, (PressedRun{"osd", site.values, changing.keys()}));
        site.configure(changing.keys());
        QVERIFY(!window.findChild<QWidget *>("configureChanging")->isEnabled()); // a plan from before the run
    }

    void offersOnlyWhatHolds()
    {
        Site site;
        PreviewWindow window(&site.session, site.form.get(), &site.settings, nullptr);
        window.show();
        window.preview();
        const auto *configure = window.findChild<QPushButton *>("configureChanging");
        const auto says = [&](const char *label, const char *text) {
            return window.findChild<QLabel *>(label)->text().contains(text) && !configure->isEnabled();
        };
        const auto previewSays = [&](const char *text) {
            window.preview();
            return isRead(window) && says("empty", text);
        };
        QTRY_VERIFY(configure->isEnabled());
        auto *search = window.findChild<QWidget *>("previewSearch")->findChild<QLineEdit *>();
        search->setText("dev-0004");
        QVERIFY(says("notice", "not only those that are shown"));
        search->clear();
        QVERIFY(configure->isEnabled());
        site.page().page->findChild<QLineEdit *>("nameParam")->setText("Another");
        const QSignalSpy wanted(&window, &PreviewWindow::signalConfigure);
        click(window, "configureChanging"); // at once
        QVERIFY(wanted.isEmpty() && says("notice", "page has changed"));
        orda_data::DevsMgrData::instance().updateDevs(site.fleet.inventory()); // another one, for all that is known
        QVERIFY(says("notice", "inventory has changed"));

        site.fleet.setFault("dev-0002", "chnosd_get_param", {device_fleet::Fault::NoAnswer});
        click(window, "previewAgain");
        QTRY_COMPARE(window.findChild<QTableWidget *>("planGroups")->item(6, 1)->text(), QString("1")); // it is silent
        click(window, "stopReading");
        QVERIFY(says("notice", "was stopped"));
        QCOMPARE(site.session.journal()->beginReading(), QString()); // somebody else has the turn
        QVERIFY(previewSays("were not read"));
        site.session.journal()->end();
        click(*site.form, "selAll");
        QVERIFY(previewSays("No device is ticked"));
        click(*site.page().page, "allParams");
        QVERIFY(previewSays("no parameter is ticked"));
    }

    void comparesWithAStandard()
    {
        Site site;
        site.configure(site.all.mid(0, 3)); // these have the page's values
        CompareWindow window(&site.session, site.form.get(), &site.settings, nullptr);
        window.show();
        window.compare();
        QVERIFY(isRead(window));
        click(window, "onlyDifferent");
        const auto isCompared = [&](const QJsonObject &standard) {
            QStringList numbers;
            const QMap<QString, int> differing = site.differing(standard);
            for (const int number : differing)
                numbers.append(QString::number(number));
            numbers.sort();
            return numbers == column(window, "settings", 0);
        };
        QVERIFY(isCompared(site.values));
        const QString model = site.all.at(9);
        auto *search = window.findChild<QWidget *>("compareSearch")->findChild<QLineEdit *>();
        search->setText(orda_data::DevsMgrData::instance().getDevInfoById(model).serialNumber);
        window.findChild<QTableView *>("settings")->selectRow(0);
        click(window, "takeModel");
        search->clear();
        QVERIFY(isCompared(site.held(model)));
        click(window, "tickDifferent");
        QStringList ticked = FormTicks::of(site.form.get()).devIds;
        ticked.sort();
        QCOMPARE(ticked, site.differing(site.held(model)).keys());

        QJsonObject expected;
        const QStringList keys = site.values.keys();
        for (const QString &key : keys)
            if (site.held(model).contains(key))
                expected.insert(key, site.held(model)[key]);
        click(window, "saveProfile");
        window.findChild<QInputDialog *>("profileName")->setTextValue("Gate");
        window.findChild<QInputDialog *>("profileName")->accept();
        QCOMPARE(ClientSettings(QDir::temp().filePath("preview_test.ini")).profiles("osd").value("Gate"), expected);
        click(window, "loadIntoPage");
        QCOMPARE(site.page().values, expected);

        const auto text = [&](const char *label) { return window.findChild<QLabel *>(label)->text(); };
        QVERIFY(text("summary").contains("do not"));
        auto *standards = window.findChild<QComboBox *>("standards");
        standards->setCurrentIndex(0); // the page, which is to send nothing
        site.page().page->findChild<QCheckBox *>("allParams")->click();
        if (!site.page().values.isEmpty())
            site.page().page->findChild<QCheckBox *>("allParams")->click();
        emit standards->activated(0);
        QVERIFY(text("values").startsWith("Nothing is compared") && text("summary").isEmpty());
        standards->setCurrentIndex(1);
        emit standards->activated(1);
        const auto *tick = window.findChild<QPushButton *>("tickDifferent");
        QVERIFY(tick->isEnabled());
        orda_data::DevsMgrData::instance().updateDevs(site.fleet.inventory()); // another one, for all that is known
        QVERIFY(!tick->isEnabled() && text("empty").contains("inventory has changed"));
    }

    void formGoesWhileTheWindowsAreOpen()
    {
        Site site;
        QWidget room;
        site.form->setParent(&room);
        PreviewWindow preview(&site.session, &room, &site.settings, nullptr);
        CompareWindow compare(&site.session, &room, &site.settings, nullptr);
        preview.preview(); // it is in the middle of reading when the form goes
        site.form.reset();
        QVERIFY(isRead(preview) && !preview.findChild<QPushButton *>("configureChanging")->isEnabled());
        preview.preview();
        compare.compare();
        QVERIFY(preview.findChild<QLabel *>("empty")->text().startsWith("The form shows no page"));
        QCOMPARE(compare.findChild<QLabel *>("empty")->text(), QString("The form is closed."));
        QCOMPARE(FormTicks::tickExactly(&room, site.all).notListed, site.all);
    }

    void loadsAnyStateOfAPage_data() { seeds(20); }
    void loadsAnyStateOfAPage()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const std::unique_ptr<QWidget> form(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
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
        const std::unique_ptr<QWidget> form(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
        const auto &wanted = *orda_batchCfg::Families::find(family);
        const auto sent = [&] { return FormPage::of(form.get(), wanted).values; };
        const QJsonObject before = sent();
        auto run = std::make_unique<orda_base::DisabledWaitingWt>(form.get(), QString());
        run->show();
        QVERIFY(!PageLoader(form.get(), wanted).load(json(values)).refusal.isEmpty() && sent() == before);
        run.reset();
        const auto loaded = PageLoader(form.get(), wanted).load(json(values));
        QCOMPARE(loaded.notSet.join(' ') + loaded.besides.join('!'), notSet);
        QCOMPARE(sent(), json(left)); // nothing else
    }
};

ORDA_TEST_MAIN(PreviewTest)

#include "preview_test.moc"
