#include "support/OrdaTest.h"

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

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>

#include <functional>

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
        QTest::addColumn<bool>("isIp");
        QTest::addColumn<QStringList>("sorted");
        const auto list = [](const char *text) { return QString::fromUtf8(text).split(QLatin1Char(',')); };
        QTest::newRow("numbers in names") << false << list("Cam 1,cam 2,Cam 10,cam 11,Dome");
        QTest::newRow("umlauts") << false << list("Zufahrt,Zuß,Zwinger");
        QTest::newRow("addresses, none last") << true << list("2.0.0.1,10.0.0.2,10.0.0.10,192.168.0.1,255.0.0.0,,");
    }

    void cellsSortAsPeopleRead()
    {
        QFETCH(bool, isIp);
        QFETCH(QStringList, sorted);
        QTableWidget table(sorted.size(), 1);
        for (int i = 0; i < sorted.size(); ++i) {
            const QString &text = sorted.at(sorted.size() - 1 - i);
            if (isIp) { // the address was another one when the cell was made
                auto *item = new orda_base::IpTableItem(QStringLiteral("1.1.1.1"), 0x01010101, 0);
                item->setText(text);
                table.setItem(i, 0, item);
            } else {
                table.setItem(i, 0, new orda_base::NameTableItem(text));
            }
        }
        table.sortItems(0);
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row)
            texts.append(table.item(row, 0)->text());
        QCOMPARE(texts, sorted);
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
        QCOMPARE(table.item(4, 0)->text(), QStringLiteral("4"));
    }

    void overlayLetsNothingThrough()
    {
        QWidget window;
        QPushButton button(QStringLiteral("&Go"), &window);
        QLineEdit edit(&window);
        QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+G")), &window);
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
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("abc"));
        };

        auto *overlay = new orda_base::DisabledWaitingWt(&window, QStringLiteral("Waiting"));
        overlay->show();
        QVERIFY(overlay->hasFocus());
        window.resize(500, 350);
        QCOMPARE(overlay->size(), window.size());
        press();
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(shortcuts.count(), 0);
        QVERIFY(edit.text().isEmpty());
        QVERIFY(overlay->hasFocus());
        overlay->updateDescription(QStringLiteral("Waiting(1/2)"));
        QCOMPARE(overlay->description(), QStringLiteral("Waiting(1/2)"));

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
        orda_base::DisabledWaitingWt overlay(&window, QStringLiteral("0"));
        overlay.show();
        for (int i = 1; i <= 20; ++i) {
            overlay.updateDescription(QString::number(i));
            QTRY_COMPARE(overlay.findChild<QLabel *>()->text(), QString::number(i));
            QCOMPARE(overlay.accessibleName(), QStringLiteral("0")); // seen, but not yet said
        }
        QTRY_COMPARE(overlay.accessibleName(), QStringLiteral("20"));
    }

    void dialogAnswersOnce_data()
    {
        QTest::addColumn<std::function<void(QDialog *)>>("operate");
        QTest::addColumn<QList<int>>("answers");
        const auto row = [](const char *name, const std::function<void(QDialog *)> &operate,
                            const QList<int> &answers) { QTest::newRow(name) << operate << answers; };
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
        orda_worker::SystemAssistant::instance().eventConfirm({QStringLiteral("id"),
                                                               QStringLiteral("Title"),
                                                               QStringLiteral("<b>100%1</b>"),
                                                               {QStringLiteral("A"), QStringLiteral("B")}});
        QDialog *dialog = openDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->parentWidget(), window);
        operate(dialog);
        QTRY_VERIFY(!openDialog());
        QList<int> indexes;
        for (const QVariantList &click : qAsConst(clicks)) {
            QCOMPARE(click.at(0).toString(), QStringLiteral("id"));
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
        const QString text =
            QStringLiteral("A total of 10000 devices have been configured, success:10000, failure:10000");
        orda_worker::SystemAssistant::instance().messageAlert(QStringLiteral("Title"), text);
        auto *dialog = window.findChild<QDialog *>(QStringLiteral("messageAlertDialog"));
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
        navigation.addNavigationBar(
            {}, {}, {QStringLiteral("Bar"), QStringLiteral("bar")},
            {{QStringLiteral("One"), QStringLiteral("one")}, {QStringLiteral("Two"), QStringLiteral("two")}},
            &navigation);
        navigation.addNavigationBar({}, {}, {QStringLiteral("Single"), QStringLiteral("single")}, {}, &navigation);
        const auto button = [&navigation](const char *key) {
            return navigation.findChild<QAbstractButton *>(QLatin1String(key));
        };
        QSignalSpy actions(&navigation, &orda_base::NavigationWidget::signalCurAction);
        QCOMPARE(navigation.setDefaultAction(QStringLiteral("bar")), QString());
        button("bar")->click();
        QVERIFY(!button("two")->isVisibleTo(&navigation));
        QCOMPARE(navigation.currentKey(), QString());
        QCOMPARE(actions.takeFirst().at(0).toString(), QStringLiteral("bar"));
        QCOMPARE(navigation.setDefaultAction(QStringLiteral("two")), QStringLiteral("two"));
        QVERIFY(button("two")->isVisibleTo(&navigation));
        QCOMPARE(actions.count(), 0);
        QTest::keyClick(button("single"), Qt::Key_Space);
        QCOMPARE(navigation.currentKey(), QStringLiteral("single"));
        QCOMPARE(actions.takeFirst().at(0).toString(), QStringLiteral("single"));
    }

    void editorsTakeWhatTheyShould()
    {
        orda_base::PortEditWt port(nullptr);
        QTest::keyClicks(&port, QStringLiteral("6553a67"));
        QCOMPARE(port.text(), QStringLiteral("6553"));
        port.clear();
        QTest::keyClicks(&port, QStringLiteral("-65535"));
        QCOMPARE(port.text(), QStringLiteral("65535"));

        orda_base::ComboBox combo;
        combo.setObjectName(QStringLiteral("pair"));
        combo.addItems({QStringLiteral("One"), QStringLiteral("Two")});
        expectWarning(QStringLiteral("pair.* has 2 items but gets 1 values"));
        combo.setItemsData({1});
        QCOMPARE(combo.itemData(0).toInt(), 1);
        combo.setItemsData({1, 2});
        QCOMPARE(combo.itemData(1).toInt(), 2);
    }

    void passwordStrength_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<int>("strength");
        QTest::newRow("empty") << QString() << int(XCOMMON::PwdInvalid);
        QTest::newRow("seven of all kinds") << QStringLiteral("aB3-xY9") << int(XCOMMON::PwdWeak);
        QTest::newRow("digits only") << QStringLiteral("20318642") << int(XCOMMON::PwdWeak);
        QTest::newRow("two kinds") << QStringLiteral("sommer31") << int(XCOMMON::PwdMedium);
        QTest::newRow("three kinds") << QStringLiteral("Sommer31") << int(XCOMMON::PwdStrong);
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
