#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <onvif/OnvifParamsCfgPage.h>
#include <orda_base/NavigationWidget.h>
#include <orda_base/Theme.h>
#include <orda_worker/AssistantSignals.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int rowHeight = 12; // centres of one row differ by less

QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

/// What a screen reader says: the caption that labels the control, else its own name. A combo box has none of its own.
QString spokenName(QWidget *widget)
{
    const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
    const auto labels = access->relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels.constFirst().first->text(QAccessible::Name);
    return qobject_cast<QComboBox *>(widget) ? QString() : access->text(QAccessible::Name);
}

bool isControl(const QWidget *widget)
{
    for (const char *type : {"QAbstractButton", "QLineEdit", "QComboBox", "QSlider", "QAbstractSpinBox", "QTableView"})
        if (widget->inherits(type))
            return widget->parent()->objectName() != QLatin1String("videoQuality"); // the line of a spin box is the box
    return (widget->focusPolicy() & Qt::TabFocus) != 0;
}

QList<QWidget *> shownControls(const QWidget *window)
{
    QList<QWidget *> controls = window->findChildren<QWidget *>();
    controls.erase(std::remove_if(controls.begin(), controls.end(),
                                  [](const QWidget *widget) {
                                      return !widget->isVisible() || !widget->isEnabled() || !isControl(widget);
                                  }),
                   controls.end());
    return controls;
}

void doAction(QAccessibleInterface *access, const QString &name)
{
    QVERIFY(access && access->actionInterface()->actionNames().contains(name));
    access->actionInterface()->doAction(name);
}

} // namespace

/// The form without a mouse and without a screen: by keyboard, and as assistive technology sees it.
class AccessTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        orda_base::Theme::apply(*qApp);
    }

    void everyControlIsNamedAndReached_data();
    void everyControlIsNamedAndReached();
    void onlyConfigureConfigures_data();
    void onlyConfigureConfigures();
    void keysSearchAndTick();
    void navigationByKeys();
    void assistiveTechnologyTicks();
};

void AccessTest::everyControlIsNamedAndReached_data()
{
    QTest::addColumn<FamilyRow>("family");
    for (const FamilyRow &family : familyTable())
        QTest::newRow(qPrintable(family.name)) << family;
}

void AccessTest::everyControlIsNamedAndReached()
{
    QFETCH(FamilyRow, family);
    const FormFixture f(3, silent);
    std::unique_ptr<QWidget> single;
    if (family.navigationKey.isEmpty())
        single = std::make_unique<orda_batchCfg::OnvifParamsCfgPage>(nullptr);
    else
        f.form->findChild<QAbstractButton *>(family.navigationKey)->click();
    QWidget *window = single ? single.get() : f.form.data();
    window->show();
    window->findChild<QWidget *>(QStringLiteral("reportBt"))->show();
    QApplication::setActiveWindow(window);
    QVERIFY(QTest::qWaitForWindowActive(window));

    QList<QWidget *> missing = shownControls(window);
    QMap<QString, QWidget *> byName;
    for (QWidget *control : qAsConst(missing)) {
        const QString name = spokenName(control);
        QVERIFY2(!name.trimmed().isEmpty(), qPrintable(control->objectName()));
        QVERIFY2(!byName.contains(name), qPrintable(name));
        byName.insert(name, control);
    }

    // Once around, as one reads: the columns from left to right, each from its top to its bottom.
    const auto columnOf = [&](const QWidget *widget) {
        const auto *form = f.form->findChild<QStackedWidget *>();
        const int x = widget->mapTo(window, QPoint(0, 0)).x();
        return single || x < form->x() ? 0 : x < form->geometry().right() ? 1 : 2;
    };
    if (window->focusWidget())
        window->focusWidget()->clearFocus();
    QTest::keyClick(window, Qt::Key_Tab);
    const QWidget *before = nullptr;
    for (QWidget *focus = window->focusWidget(); missing.contains(focus); focus = window->focusWidget()) {
        if (before && columnOf(focus) == columnOf(before)) {
            const QPoint step =
                focus->mapTo(window, focus->rect().center()) - before->mapTo(window, before->rect().center());
            QVERIFY2(step.y() > rowHeight || (step.y() > -rowHeight && step.x() > 0), qPrintable(spokenName(focus)));
        }
        QVERIFY2(!before || columnOf(focus) >= columnOf(before), qPrintable(spokenName(focus)));
        missing.removeOne(focus);
        before = focus;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (const QWidget *control : qAsConst(missing)) // the icons in a line are for the mouse
        QVERIFY2(qobject_cast<QLineEdit *>(control->parent()), qPrintable(byName.key(const_cast<QWidget *>(control))));
}

void AccessTest::onlyConfigureConfigures_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("times");
    const auto row = [](const char *focus, int key, int times) {
        QTest::addRow("%s %s", focus, qPrintable(QKeySequence(key).toString()))
            << QString::fromLatin1(focus) << key << times;
    };
    for (const char *elsewhere : {"nameParam", "timePositionParam", "osdVisible", "devsTableWt", "searchBox"})
        row(elsewhere, Qt::Key_Return, 0);
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space)})
        row("okBt", key, 1);
    for (const char *anywhere : {"nameParam", "devsTableWt", "searchBox", "okBt"})
        row(anywhere, Qt::CTRL + Qt::Key_Return, 1);
}

void AccessTest::onlyConfigureConfigures()
{
    QFETCH(QString, focus);
    QFETCH(int, key);
    QFETCH(int, times);
    QDialog window; // a client may show the form in one, where Return presses buttons of its own accord
    const FormFixture f(1, silent);
    (new QVBoxLayout(&window))->addWidget(f.form);
    window.show();
    QApplication::setActiveWindow(&window);
    f.form->findChild<QAbstractButton *>(QStringLiteral("osd_param"))->click();
    // No device is ticked: each press of Configure is answered by this alert.
    QSignalSpy alerts(&orda_worker::AssistantSignals::instance(), &orda_worker::AssistantSignals::signalMessageAlerted);
    auto *widget = f.page("osdParamsCfgPage")->findChild<QWidget *>(focus);
    (widget ? widget : f.form->findChild<QWidget *>(focus))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
    QCOMPARE(alerts.count(), times);
    QVERIFY(window.isVisible());
    QVERIFY(!f.page("osdParamsCfgPage")->findChild<QAbstractButton *>(QStringLiteral("visibleSwitch"))->isChecked());
}

void AccessTest::keysSearchAndTick()
{
    const FormFixture f(12, silent);
    QApplication::setActiveWindow(f.form);
    f.table()->setFocus(Qt::TabFocusReason);
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    };
    press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(f.searchEdit()->hasFocus());
    QTest::keyClicks(f.searchEdit(), QStringLiteral("cam 1"));
    QCOMPARE(f.column(0).size(), 3);

    f.table()->setCurrentCell(10, 2); // any column
    f.table()->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(f.form->checkedDevIds(), QStringList{QStringLiteral("dev10")});
    QCOMPARE(f.box("selAll")->checkState(), Qt::PartiallyChecked);
    f.table()->selectAll(); // hidden rows too
    press(Qt::Key_Space);
    f.searchEdit()->setFocus();
    press(Qt::Key_Escape);
    QVERIFY(f.searchEdit()->text().isEmpty());
    QCOMPARE(f.form->checkedDevIds(),
             (QStringList{QStringLiteral("dev1"), QStringLiteral("dev10"), QStringLiteral("dev11")}));
    f.table()->setFocus();
    f.table()->setCurrentCell(1, 0);
    press(Qt::Key_Space); // once, where Qt ticks by itself too
    QCOMPARE(f.form->checkedDevIds().size(), 2);

    f.form->findChild<QWidget *>(QStringLiteral("devName"))->setFocus();
    press(Qt::Key_Space);
    QCOMPARE(f.column(1).at(2), QStringLiteral("Cam 2"));
}

void AccessTest::navigationByKeys()
{
    const FormFixture f(0, silent);
    QApplication::setActiveWindow(f.form);
    const auto *navigation = f.form->findChild<orda_base::NavigationWidget *>();
    const auto button = [&f](const char *key) { return f.form->findChild<QAbstractButton *>(QLatin1String(key)); };
    const auto state = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget)->state(); };
    button("video_param")->setFocus();
    QTest::keyClick(button("video_param"), Qt::Key_Down);
    QVERIFY(button("image_param")->hasFocus());
    QTest::keyClick(button("image_param"), Qt::Key_Return);
    QCOMPARE(navigation->currentKey(), QStringLiteral("image_param"));
    QVERIFY(state(button("image_param")).selected && !state(button("video_param")).selected);
    QTest::keyClick(button("image_param"), Qt::Key_Up);
    QTest::keyClick(button("video_param"), Qt::Key_Up);
    QTest::keyClick(button("audio_param"), Qt::Key_Up);
    QVERIFY(state(button("audio_video_param")).expanded);
    QTest::keyClick(button("audio_video_param"), Qt::Key_Space);
    QVERIFY(state(button("audio_video_param")).collapsed);
    QTest::keyClick(button("audio_video_param"), Qt::Key_Down); // over the entries that are folded away
    QVERIFY(button("image_param")->hasFocus());
}

void AccessTest::assistiveTechnologyTicks()
{
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const FormFixture f(4, silent);
    auto *table = QAccessible::queryAccessibleInterface(f.table());
    auto *cell = table->tableInterface()->cellAt(2, 0);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("3 Cam 2"));
    QCOMPARE(table->tableInterface()->columnDescription(3), QStringLiteral("Ip"));
    QCOMPARE(table->child(table->indexOfChild(cell)), cell);
    doAction(cell, toggle);
    QCOMPARE(f.form->checkedDevIds(), QStringList{QStringLiteral("dev2")});
    QVERIFY(cell->state().checkable && cell->state().checked);

    f.form->findChild<QWidget *>(QStringLiteral("selAll"))->setFocus();
    doAction(QAccessible::queryAccessibleInterface(f.box("selAll")), toggle);
    QCOMPARE(f.form->checkedDevIds().size(), 4);
    auto *page = f.page("videoParametersPage");
    const auto *okBt = page->findChild<QWidget *>(QStringLiteral("okBt"));
    doAction(QAccessible::queryAccessibleInterface(page->findChild<QWidget *>(QStringLiteral("allParams"))), toggle);
    QVERIFY(!okBt->isEnabled() && !page->findChild<QCheckBox *>(QStringLiteral("bitRate"))->isChecked());
    doAction(QAccessible::queryAccessibleInterface(page->findChild<QWidget *>(QStringLiteral("bitRate"))), toggle);
    QVERIFY(okBt->isEnabled());
}

ORDA_TEST_MAIN(AccessTest)
#include "access_test.moc"
