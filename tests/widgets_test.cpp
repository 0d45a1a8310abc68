#include "support/OrdaTest.h"

#include <QtWidgets>
#include <XCOMMON/PwdStrength.h>
#include <XCOMMON/XTableWidget.h>
#include <orda_base/BaseTools.h>
#include <orda_base/ComboBox.h>
#include <orda_base/DisabledWaitingWt.h>
#include <orda_base/DisabledWaitingWtManager.h>
#include <orda_base/IpTableItem.h>
#include <orda_base/NameTableItem.h>
#include <orda_base/NavigationWidget.h>
#include <orda_base/PortEditWt.h>
#include <orda_base/Theme.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/SystemAssistant.h>

using orda_worker::AssistantSignals;

namespace {

QDialog *openDialog()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *dialog = qobject_cast<QDialog *>(window); dialog && dialog->isVisible())
            return dialog;
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QDialog *)>)

/// The client's own widgets and dialogs.
class WidgetsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { orda_base::Theme::apply(*qApp); }

    void cellsSortAsPeopleRead_data()
    {
        columns<bool, QString>({"isIp", "sorted"});
        row("numbers in names", false, "Cam 1,cam 2,Cam 10,cam 11,Dome");
        row("umlauts", false, "Zufahrt,Zuß,Zwinger");
        row("addresses, none last", true, "2.0.0.1,10.0.0.2,10.0.0.10,192.168.0.1,255.0.0.0,,");
    }

    void cellsSortAsPeopleRead()
    {
        QFETCH(bool, isIp);
        QFETCH(QString, sorted);
        const QStringList texts = sorted.split(',');
        QTableWidget table(texts.size(), 1);
        for (int i = 0; i < texts.size(); ++i) { // the address was another one when the cell was made
            table.setItem(i, 0,
                          isIp ? new orda_base::IpTableItem("1.1.1.1", 0x01010101, 0)
                               : static_cast<QTableWidgetItem *>(new orda_base::NameTableItem("")));
            table.item(i, 0)->setText(texts.at(texts.size() - 1 - i));
        }
        table.sortItems(0);
        for (int i = 0; i < texts.size(); ++i)
            QCOMPARE(table.item(i, 0)->text(), texts.at(i));
    }

    void orderNumbersTouchOnlyWhatChanges()
    {
        XCOMMON::XTableWidget table(5, 1);
        for (int row = 0; row < 5; ++row)
            table.setItem(row, 0, new QTableWidgetItem(QString::number(row + 1)));
        table.setRowHidden(3, true);
        QSignalSpy changes(&table, &QTableWidget::cellChanged);
        orda_base::BaseTools::instance().updateTableOrderNum(&table, 1);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(table.item(4, 0)->text(), "4");
    }

    void overlayLetsNothingThrough()
    {
        QWidget window;
        QPushButton button("&Go", &window);
        QLineEdit edit(&window);
        QShortcut shortcut(QKeySequence("Ctrl+G"), &window);
        window.resize(400, 300);
        window.show();
        QApplication::setActiveWindow(&window);
        edit.setFocus();
        QSignalSpy clicks(&button, &QPushButton::clicked);
        QSignalSpy shortcuts(&shortcut, &QShortcut::activated);
        const auto press = [&] {
            QTest::mouseClick(&button, Qt::LeftButton);
            QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
            QTest::keyClick(window.windowHandle(), Qt::Key_G, Qt::ControlModifier);
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
            QTest::keyClicks(QApplication::focusWidget(), "abc");
        };

        auto *overlay = new orda_base::DisabledWaitingWt(&window, "Waiting");
        overlay->show();
        QVERIFY(overlay->hasFocus());
        window.resize(500, 350);
        QCOMPARE(overlay->size(), window.size());
        press();
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(shortcuts.count(), 0);
        QVERIFY(edit.text().isEmpty());
        QVERIFY(overlay->hasFocus());
        overlay->updateDescription("Waiting(1/2)");
        QCOMPARE(overlay->description(), "Waiting(1/2)");

        orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlay->getUuid());
        QVERIFY(edit.hasFocus());
        press();
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(shortcuts.count(), 1);

        overlay = new orda_base::DisabledWaitingWt(&window, QString());
        const QUuid gone = overlay->getUuid();
        delete overlay; // as when its parent is deleted
        orda_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(gone);
    }

    void overlayAnnouncesAtTheSpeedOfSpeech()
    {
        QWidget window;
        window.show();
        orda_base::DisabledWaitingWt overlay(&window, "0");
        overlay.show();
        for (int i = 1; i <= 20; ++i) {
            overlay.updateDescription(QString::number(i));
            QTRY_COMPARE(overlay.findChild<QLabel *>()->text(), QString::number(i));
            QCOMPARE(overlay.accessibleName(), "0"); // seen, but not yet said
        }
        QTRY_COMPARE(overlay.accessibleName(), "20");
    }

    void dialogAnswersOnce_data()
    {
        columns<std::function<void(QDialog *)>, QList<int>>({"operate", "answers"});
        const auto row = [](const char *name, const std::function<void(QDialog *)> &operate,
                            const QList<int> &answers) { ::row(name, operate, answers); };
        row("second button twice",
            [](QDialog *d) {
                auto *button = d->findChildren<QPushButton *>().at(1);
                button->click();
                button->click();
            },
            {1});
        row("Return takes the first", [](QDialog *d) { QTest::keyClick(d, Qt::Key_Return); }, {0});
        row("a held Return does not",
            [](QDialog *d) {
                QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
                QCoreApplication::sendEvent(d->focusWidget(), &held);
                d->reject();
            },
            {1});
        row("Esc counts as the last", [](QDialog *d) { QTest::keyClick(d, Qt::Key_Escape); }, {1});
        row("closing counts as the last", [](QDialog *d) { d->close(); }, {1});
        row("its window is deleted", [](QDialog *d) { delete d->parentWidget(); }, {});
    }

    void dialogAnswersOnce()
    {
        using Operation = std::function<void(QDialog *)>;
        QFETCH(Operation, operate);
        QFETCH(QList<int>, answers);
        auto *window = new QWidget;
        const QPointer<QWidget> guard(window);
        window->show();
        QApplication::setActiveWindow(window);
        QSignalSpy clicks(&AssistantSignals::instance(), &AssistantSignals::signalEventConfirmOperBtClicked);
        orda_worker::SystemAssistant::instance().eventConfirm({"id", "Title", "<b>100%1</b>", {"A", "B"}});
        QDialog *dialog = openDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->parentWidget(), window);
        operate(dialog);
        QTRY_VERIFY(!openDialog());
        QList<int> indexes;
        for (const QVariantList &click : qAsConst(clicks)) {
            QCOMPARE(click.at(0).toString(), "id");
            indexes.append(click.at(1).toInt());
        }
        QCOMPARE(indexes, answers);
        delete guard;
    }

    /// A wrapped line would end between "failure:" and its number.
    void summaryStaysOnOneLine()
    {
        QWidget window;
        window.show();
        orda_worker::SystemAssistant::instance().messageAlert("Title", summaryOf(10000, 10000));
        auto *dialog = window.findChild<QDialog *>("messageAlertDialog");
        const auto labels = dialog->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            QCOMPARE(label->textFormat(), Qt::PlainText); // file names may look like mark-up
            QVERIFY2(label->height() < 2 * label->fontMetrics().height(), qPrintable(label->text()));
        }
        dialog->reject();
    }

    void navigationFoldsAndHighlights()
    {
        orda_base::NavigationWidget navigation;
        navigation.addNavigationBar({}, {}, {"Bar", "bar"}, {{"One", "one"}, {"Two", "two"}}, &navigation);
        navigation.addNavigationBar({}, {}, {"Single", "single"}, {}, &navigation);
        const auto button = [&navigation](const char *key) { return navigation.findChild<QAbstractButton *>(key); };
        QSignalSpy actions(&navigation, &orda_base::NavigationWidget::signalCurAction);
        QCOMPARE(navigation.setDefaultAction("bar"), QString());
        button("bar")->click();
        QVERIFY(!button("two")->isVisibleTo(&navigation));
        QCOMPARE(navigation.currentKey(), QString());
        QCOMPARE(actions.takeFirst().at(0).toString(), "bar");
        QCOMPARE(navigation.setDefaultAction("two"), "two");
        QVERIFY(button("two")->isVisibleTo(&navigation));
        QCOMPARE(actions.count(), 0);
        QTest::keyClick(button("single"), Qt::Key_Space);
        QCOMPARE(navigation.currentKey(), "single");
        QCOMPARE(actions.takeFirst().at(0).toString(), "single");
    }

    void editorsTakeWhatTheyShould()
    {
        orda_base::PortEditWt port(nullptr);
        QTest::keyClicks(&port, "6553a67");
        QCOMPARE(port.text(), "6553");
        port.clear();
        QTest::keyClicks(&port, "-65535");
        QCOMPARE(port.text(), "65535");

        orda_base::ComboBox combo;
        combo.setObjectName("pair");
        combo.addItems({"One", "Two"});
        expectWarning("pair.* has 2 items but gets 1 values");
        combo.setItemsData({1});
        QCOMPARE(combo.itemData(0).toInt(), 1);
        combo.setItemsData({1, 2});
        QCOMPARE(combo.itemData(1).toInt(), 2);
    }

    void passwordStrength_data()
    {
        columns<QString, int>({"password", "strength"});
        row("empty", "", int(XCOMMON::PwdInvalid));
        row("seven of all kinds", "aB3-xY9", int(XCOMMON::PwdWeak));
        row("digits only", "20318642", int(XCOMMON::PwdWeak));
        row("two kinds", "sommer31", int(XCOMMON::PwdMedium));
        row("three kinds", "Sommer31", int(XCOMMON::PwdStrong));
    }

    void passwordStrength()
    {
        QFETCH(QString, password);
        QFETCH(int, strength);
        QCOMPARE(int(XCOMMON::checkPwdStrength(password)), strength);
    }
};

ORDA_TEST_MAIN(WidgetsTest)
#include "widgets_test.moc"
