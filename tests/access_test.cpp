#include "support/Controls.h"
#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <QtWidgets>
#include <onvif/OnvifParamsCfgPage.h>
#include <orda_base/SearchBox.h>
#include <orda_base/Theme.h>
#include <orda_worker/AssistantSignals.h>

namespace {

void press(int key, QWidget *focus = QApplication::focusWidget())
{
    QTest::keyClick(focus, Qt::Key(key & ~Qt::KeyboardModifierMask), Qt::KeyboardModifiers(key & Qt::CTRL));
}

} // namespace

/// The form without a mouse and without a screen: by keyboard, and as assistive technology sees it.
class AccessTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { orda_base::Theme::apply(*qApp); }

    void everyControlIsNamedAndReached_data()
    {
        QTest::addColumn<FamilyRow>("family");
        for (const FamilyRow &family : familyTable())
            QTest::newRow(qPrintable(family.name)) << family;
    }

    void everyControlIsNamedAndReached()
    {
        QFETCH(FamilyRow, family);
        const FormFixture f(3, silent);
        orda_batchCfg::OnvifParamsCfgPage onvif(nullptr);
        QWidget *window = family.navigationKey.isEmpty() ? static_cast<QWidget *>(&onvif) : f.form;
        if (window == f.form)
            f.form->findChild<QAbstractButton *>(family.navigationKey)->click();
        window->show();
        const auto reports = window->findChildren<QWidget *>("reportBt");
        for (QWidget *report : reports) // as after a run
            report->show();
        QApplication::setActiveWindow(window);

        QList<QWidget *> missing = shownControls(window);
        QMap<QString, QString> names;
        for (QWidget *control : qAsConst(missing)) {
            const QString name = spokenName(control);
            QVERIFY2(!name.trimmed().isEmpty(), qPrintable(control->objectName()));
            QVERIFY2(!names.contains(name), qPrintable(name + ": " + names.value(name)));
            names.insert(name, control->objectName());
        }

        // Once around as one reads: the columns from left to right, each row by row.
        const QRect pages = f.form->findChild<QStackedWidget *>()->geometry();
        const auto isRead = [&](const QWidget *before, const QWidget *after) {
            const QPoint from = before->mapTo(window, before->rect().center());
            const QPoint to = after->mapTo(window, after->rect().center());
            for (const int border : {pages.left(), pages.right()})
                if (window == f.form && (from.x() > border) != (to.x() > border))
                    return to.x() > border;
            return qAbs(to.y() - from.y()) < 8 ? to.x() > from.x() : to.y() > from.y();
        };
        if (window->focusWidget())
            window->focusWidget()->clearFocus();
        press(Qt::Key_Tab, window);
        const QWidget *first = window->focusWidget();
        QRect place; // of the control before, and how it looked with the focus
        QImage focused;
        for (QWidget *before = nullptr; missing.removeOne(window->focusWidget()); press(Qt::Key_Tab, before)) {
            QVERIFY2(!before || isRead(before, window->focusWidget()), qPrintable(spokenName(window->focusWidget())));
            QVERIFY2(!before || window->grab(place).toImage() != focused, "it shows no focus");
            before = window->focusWidget();
            place = {before->mapTo(window, QPoint()), before->size()};
            focused = window->grab(place).toImage();
        }
        QCOMPARE(window->focusWidget(), first); // no control keeps the focus
        for (QWidget *control : qAsConst(missing)) // the icons in a line are for the mouse
            QVERIFY2(qobject_cast<QLineEdit *>(control->parent()), qPrintable(spokenName(control)));
    }

    void onlyConfigureConfigures_data()
    {
        columns<QString, int, int>({"focus", "key", "times"});
        for (const char *elsewhere :
             {"audioInVolumeParam", "BitWideParam", "audioEnable", "devName", "devsTableWt", "searchBox"}) {
            QTest::addRow("Return in %s", elsewhere) << QString::fromLatin1(elsewhere) << int(Qt::Key_Return) << 0;
            QTest::addRow("Ctrl+Return in %s", elsewhere)
                << QString::fromLatin1(elsewhere) << int(Qt::CTRL + Qt::Key_Return) << 1;
        }
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Space), int(Qt::CTRL + Qt::Key_Return)})
            QTest::addRow("%x on Configure", key) << "okBt" << key << 1;
    }

    void onlyConfigureConfigures()
    {
        QFETCH(QString, focus);
        QFETCH(int, key);
        QFETCH(int, times);
        QDialog dialog; // a client may show the form in one, where Return presses buttons of its own accord
        const FormFixture f(1, silent);
        QPushButton theirs;
        theirs.setDefault(true);
        const QSignalSpy foreign(&theirs, &QAbstractButton::clicked);
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(f.form);
        layout->addWidget(&theirs);
        f.form->findChild<QAbstractButton *>("audio_param")->click();
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        // No device is ticked: each press of Configure is answered by this alert.
        QSignalSpy alerts(&orda_worker::AssistantSignals::instance(),
                          &orda_worker::AssistantSignals::signalMessageAlerted);
        f.page(qPrintable(focus))->setFocus();
        press(key);
        QCOMPARE(alerts.count(), times);
        QVERIFY(foreign.isEmpty() || focus == "devsTableWt"); // which has no use for Return
        QVERIFY(!f.form->findChild<QAbstractButton *>("audioSwitch")->isChecked());
    }

    void keysNavigateSearchAndTick()
    {
        const FormFixture f(12, silent);
        QApplication::setActiveWindow(f.form);
        f.page("audio_video_param")->setFocus();
        const auto *bar = QAccessible::queryAccessibleInterface(f.page("audio_video_param"));
        QVERIFY(bar->state().expandable && bar->state().expanded && !bar->state().collapsed);
        for (const int key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) // folds its entries away, goes on, opens
            press(key);
        QVERIFY(!bar->state().expanded && bar->state().collapsed);
        QVERIFY(f.page("imageParametersPage")->isVisible());

        f.table()->setCurrentCell(5, 2);
        press(Qt::CTRL + Qt::Key_F);
        QTest::keyClicks(QApplication::focusWidget(), "cam 1");
        const QSignalSpy searches(f.form->findChild<orda_base::SearchBox *>(),
                                  &orda_base::SearchBox::signalSearchByKeyword);
        press(Qt::Key_Return);
        QCOMPARE(searches.count(), 1);
        f.table()->setFocus(); // on the first row that is left
        press(Qt::Key_Space);
        QCOMPARE(f.form->checkedDevIds(), QStringList{"dev1"});
        f.table()->setCurrentCell(10, 2); // any column
        press(Qt::Key_Space);
        QCOMPARE(f.form->checkedDevIds(), (QStringList{"dev1", "dev10"}));
        f.table()->selectAll(); // hidden rows too
        press(Qt::Key_Space);
        press(Qt::CTRL + Qt::Key_F);
        press(Qt::Key_Escape);
        QCOMPARE(f.column(0).size(), 12);
        QCOMPARE(f.form->checkedDevIds().size(), 3);
        f.table()->setFocus(); // what is selected stays so
        QCOMPARE(f.table()->selectionModel()->selectedRows().size(), 12);
        f.table()->setCurrentCell(1, 0);
        f.table()->setFocus();
        press(Qt::Key_Space); // once, where Qt ticks by itself too
        QCOMPARE(f.form->checkedDevIds(), (QStringList{"dev10", "dev11"}));
        f.table()->selectAll();
        QTest::mouseClick(
            f.table()->viewport(), Qt::LeftButton, Qt::ControlModifier,
            f.table()->visualItemRect(f.table()->item(1, 1)).center()); // the current row, but not selected
        press(Qt::Key_Space);
        QCOMPARE(f.form->checkedDevIds().size(), 11);
        QVERIFY(!f.form->checkedDevIds().contains("dev1"));
        f.page("devSn")->setFocus();
        press(Qt::Key_Space);
        QCOMPARE(f.column(2).at(2), "SN10"); // before SN2
    }

    void assistiveTechnologyTogglesBoxes()
    {
        const FormFixture f(3, silent);
        f.form->findChild<QAbstractButton *>("audio_param")->click();
        const QWidget *page = f.page("audioParametersPage");
        const auto toggle = [](QAccessibleInterface *control) {
            control->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        };
        const auto box = [page](const char *name) { return page->findChild<QCheckBox *>(name); };
        const auto *configure = page->findChild<QPushButton *>("okBt");
        box("allParams")->click();
        toggle(QAccessible::queryAccessibleInterface(box("audioEnable")));
        QVERIFY(configure->isEnabled());
        QCOMPARE(box("allParams")->checkState(), Qt::PartiallyChecked);

        f.tickAll();
        toggle(QAccessible::queryAccessibleInterface(f.table())->tableInterface()->cellAt(1, 0));
        QCOMPARE(f.form->checkedDevIds(), (QStringList{"dev0", "dev2"}));
        QCOMPARE(f.box("selAll")->checkState(), Qt::PartiallyChecked);
    }
};

ORDA_TEST_MAIN(AccessTest)
#include "access_test.moc"
