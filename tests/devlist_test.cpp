#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_base/BaseTools.h>
#include <orda_base/NavigationWidget.h>
#include <orda_data/DevsMgrData.h>
#include <shell/BatchCfgInit.h>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QTextDocumentFragment>
#include <QToolTip>

using orda_data::DevsMgrData;
using vms_sdk::DevInfo;

namespace {

enum Column
{
    Name = 1,
    Ip = 3
};

DevsMgrData &store()
{
    return DevsMgrData::instance();
}

void rightClick(const QTableWidget *table, const QPoint &pos)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, table->viewport()->mapToGlobal(pos));
    QCoreApplication::sendEvent(table->viewport(), &event);
}

void addOnline(const DevInfo &dev)
{
    store().updateDevs({dev});
    store().setDevStatus(dev.id, vms_sdk::DevOnline);
}

} // namespace

/// The form's navigation and its list of devices online.
class DevlistTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void opensOnVideoAndFollowsTheNavigation()
    {
        const FormFixture f(0, silent);
        const auto *stack = f.form->findChild<QStackedWidget *>("stackedWidget");
        const auto *navigation = f.form->findChild<orda_base::NavigationWidget *>();
        QCOMPARE(stack->currentIndex(), 1);
        QCOMPARE(navigation->currentKey(), "video_param");
        QCOMPARE(f.form->formType(), 8);
        auto &entry = orda_batchCfg::BatchCfgInit::instance();
        const std::unique_ptr<QObject> first(entry.createBatchCfgForm()), second(entry.createBatchCfgForm());
        QVERIFY(first != second && !first->parent()); // every call makes one

        const QList<std::pair<const char *, int>> expected{
            {"audio_param", 0},    {"audio_video_param", 0},   {"image_param", 2},
            {"platform_param", 2}, {"cloud_service_param", 3}, {"9100_param", 4},
            {"network_param", 5},  {"osd_param", 6},           {"video_param", 1}};
        for (const auto &[key, index] : expected) {
            f.form->findChild<QAbstractButton *>(key)->click();
            QVERIFY2(stack->currentIndex() == index, key);
        }
    }

    void showsNamesAsTheyStand_data()
    {
        columns<QString, QString>({"name", "shown"}); // sdk_test knows what cannot be seen
        row("ordinary", "Zufahrt  3 & 4 \u05e9\u05e2\u05e8", "Zufahrt  3 & 4 \u05e9\u05e2\u05e8");
        row("mark-up", "<b>x</b> &lt; <img src=\"/etc/hostname\">", "<b>x</b> &lt; <img src=\"/etc/hostname\">");
        row("right to left", "Tor \u202e21 maC\u202c\n", "Tor \ufffd21 maC\ufffd\ufffd");
    }

    void showsNamesAsTheyStand()
    {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        const FormFixture f(1, silent);
        const auto cell = [&f] { return f.table()->item(0, Name); };
        const auto drawn = [&](const QString &text) {
            DevInfo dev = FormFixture::device(0);
            dev.name = text;
            store().updateDevs({dev});
            return f.table()->viewport()->grab(f.table()->visualItemRect(cell())).toImage();
        };
        const QImage expected = drawn(shown);
        QCOMPARE(drawn(name), expected);
        QCOMPARE(cell()->text(), name);
        QCOMPARE(cell()->toolTip(), name);

        const QPoint pos = f.table()->visualItemRect(cell()).center();
        QHelpEvent help(QEvent::ToolTip, pos, f.table()->viewport()->mapToGlobal(pos));
        QCoreApplication::sendEvent(f.table()->viewport(), &help);
        QCOMPARE(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), shown);
    }

    void contextMenuOpensTheDevice()
    {
        const FormFixture f(2, silent);
        QSignalSpy opened(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened);
        auto *menu = f.table()->findChild<QMenu *>();
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().constFirst()->text(), "Remote Set");

        rightClick(f.table(), QPoint(10, f.table()->viewport()->height() - 2));
        QVERIFY(!menu->isVisible());
        QTimer::singleShot(0, menu, [menu] {
            menu->actions().constFirst()->trigger();
            menu->close();
        });
        rightClick(f.table(), f.table()->visualItemRect(f.table()->item(1, Name)).center());
        QCOMPARE(opened.count(), 1);
        QCOMPARE(opened.at(0).at(0).toString(), "dev1");
    }

    void contextMenuSurvivesItsRowAndItsForm()
    {
        QSignalSpy opened(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened);
        const FormFixture f(2, silent);
        auto *menu = f.table()->findChild<QMenu *>();
        const QPoint second = f.table()->visualItemRect(f.table()->item(1, Ip)).center();
        QTimer::singleShot(0, menu, [menu] {
            store().setDevStatus("dev1", vms_sdk::DevOffline);
            menu->actions().constFirst()->trigger();
            menu->close();
        });
        rightClick(f.table(), second);
        QCOMPARE(opened.count(), 0);

        QTimer::singleShot(0, menu, [&f] { delete f.form; });
        rightClick(f.table(), QPoint(10, 10));
        QVERIFY(f.form.isNull());
    }

    void saysWhyItIsEmpty()
    {
        const FormFixture f(0, silent);
        const auto *hint = f.form->findChild<QLabel *>("emptyListHint");
        const auto hintText = [hint] { return hint->isVisible() ? hint->text().section(' ', 0, 2) : QString(); };
        QTRY_COMPARE(hintText(), "There are no");

        DevInfo dev = FormFixture::device(1);
        dev.kindCode = 9;
        store().updateDevs({dev});
        QTRY_COMPARE(hintText(), "No device is");
        store().setDevStatus(dev.id, vms_sdk::DevOnline);
        QTRY_COMPARE(hintText(), "None of the");
        addOnline(FormFixture::device(2));
        QTRY_COMPARE(hintText(), QString());
        f.searchEdit()->setText("nowhere");
        QTRY_COMPARE(hintText(), "No device in");
        f.searchEdit()->clear();
        QTRY_COMPARE(hintText(), QString());
        store().setDevStatus("dev2", vms_sdk::DevOffline);
        QTRY_COMPARE(hintText(), "None of the");
        QCOMPARE(f.table()->accessibleDescription(), hint->text());
    }

    void saysWhyItIsEmptyWhereItIsSeen()
    {
        const FormFixture f(200, silent);
        f.table()->scrollToBottom();
        f.form->hide();
        f.searchEdit()->setText("nowhere");
        f.form->show();
        const auto *hint = f.form->findChild<QLabel *>("emptyListHint");
        QTRY_VERIFY(hint->isVisible());
        QCOMPARE(hint->geometry(), f.table()->viewport()->rect());
        QVERIFY(!f.table()->viewport()->childAt(hint->geometry().center())); // a click reaches the list
        f.searchEdit()->clear();
        QTRY_VERIFY(!hint->isVisible() && f.table()->accessibleDescription() != hint->text());
    }
};

ORDA_TEST_MAIN(DevlistTest)
#include "devlist_test.moc"
