#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_base/BaseTools.h>
#include <orda_base/NavigationWidget.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <orda_saas/SaasWorker.h>
#include <shell/BatchCfgInit.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTimer>

using orda_data::DevsMgrData;
using vms_sdk::DevInfo;

namespace {

enum Column
{
    OrderNum,
    Name,
    SerialNumber,
    Ip
};

QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

DevsMgrData &store()
{
    return DevsMgrData::instance();
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
    void opensOnVideoAndFollowsTheNavigation();
    void listsTheDevicesThatMayBeConfigured_data();
    void listsTheDevicesThatMayBeConfigured();
    void followsTheStore();
    void followsTheLogin();
    void searchesAndKeepsCheckMarks();
    void sortsByHeaders();
    void contextMenuOpensTheDevice();
    void contextMenuSurvivesItsRowAndItsForm();
    void saysWhyItIsEmpty();
    void saysWhyItIsEmptyWhereItIsSeen();
    void everyCallMakesAForm();
};

void DevlistTest::opensOnVideoAndFollowsTheNavigation()
{
    const FormFixture f(0, silent);
    const auto *stack = f.form->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    const auto *navigation = f.form->findChild<orda_base::NavigationWidget *>();
    QCOMPARE(stack->currentIndex(), 1);
    QCOMPARE(navigation->currentKey(), QStringLiteral("video_param"));
    QCOMPARE(f.form->formType(), 8);

    const QList<std::pair<const char *, int>> expected{
        {"audio_param", 0},    {"audio_video_param", 0},   {"image_param", 2},
        {"platform_param", 2}, {"cloud_service_param", 3}, {"9100_param", 4},
        {"network_param", 5},  {"osd_param", 6},           {"video_param", 1}};
    for (const auto &[key, index] : expected) {
        f.form->findChild<QAbstractButton *>(QLatin1String(key))->click();
        QVERIFY2(stack->currentIndex() == index, key);
    }
}

void DevlistTest::listsTheDevicesThatMayBeConfigured_data()
{
    QTest::addColumn<DevInfo>("dev");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isListed");

    DevInfo dev = FormFixture::device(0);
    const auto row = [&dev](const char *name, int status, bool isListed, void (*change)(DevInfo &)) {
        DevInfo changed = dev;
        change(changed);
        QTest::newRow(name) << changed << status << isListed;
    };
    row("camera", 1, true, [](DevInfo &) {});
    row("recorder", 1, true, [](DevInfo &d) { d.kindCode = 6; });
    row("other kind", 1, false, [](DevInfo &d) { d.kindCode = 2; });
    row("not reached directly", 1, false, [](DevInfo &d) { d.accessCode = 2; });
    row("offline", 0, false, [](DevInfo &) {});
    row("connecting", 2, false, [](DevInfo &) {});
    row("refused", 3, false, [](DevInfo &) {});
    row("address, factory password", 5, true, [](DevInfo &) {});
    row("address, locked", 6, true, [](DevInfo &) {});
    dev.ip.clear();
    row("cloud, no password", 1, false, [](DevInfo &) {});
    row("cloud, weak password", 1, false, [](DevInfo &d) { d.password = QStringLiteral("12345678"); });
    row("cloud, good password", 1, true, [](DevInfo &d) { d.password = QStringLiteral("Sommer-2031"); });
    dev.password = QStringLiteral("Sommer-2031");
    row("cloud, good password, factory state", 5, false, [](DevInfo &) {});
    row("cloud, good password, locked", 6, false, [](DevInfo &) {});
    row("cloud, freely operable, locked", 6, true, [](DevInfo &d) { d.serialNumber = QStringLiteral("FREE"); });
    row("cloud, freely operable, offline", 0, false, [](DevInfo &d) { d.serialNumber = QStringLiteral("FREE"); });
}

void DevlistTest::listsTheDevicesThatMayBeConfigured()
{
    QFETCH(DevInfo, dev);
    QFETCH(int, status);
    QFETCH(bool, isListed);
    const QStringList expected = isListed ? QStringList{dev.name} : QStringList();

    const FormFixture live(0, silent);
    orda_saas::SaasWorker::instance().setFreelyOperable({QStringLiteral("FREE")});
    store().updateDevs({dev});
    store().setDevStatus(dev.id, vms_sdk::DevStatus(status));
    QCOMPARE(live.column(Name), expected);
    const orda_batchCfg::BatchCfgForm later; // and the same when the form comes after the device
    QCOMPARE(later.findChild<QTableWidget *>()->rowCount(), expected.size());
}

void DevlistTest::followsTheStore()
{
    const FormFixture f(3, silent);
    f.tickAll();
    store().setDevStatus(QStringLiteral("dev1"), vms_sdk::DevLocked); // stays eligible: nothing changes
    QCOMPARE(f.column(Name), (QStringList{QStringLiteral("Cam 0"), QStringLiteral("Cam 1"), QStringLiteral("Cam 2")}));
    QCOMPARE(f.form->checkedDevIds().size(), 3);

    store().setDevStatus(QStringLiteral("dev1"), vms_sdk::DevOffline);
    QCOMPARE(f.column(OrderNum), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    store().setDevStatus(QStringLiteral("dev1"), vms_sdk::DevOnline); // back at the bottom, without its mark
    QCOMPARE(f.column(Name), (QStringList{QStringLiteral("Cam 0"), QStringLiteral("Cam 2"), QStringLiteral("Cam 1")}));
    QCOMPARE(f.form->checkedDevIds(), (QStringList{QStringLiteral("dev0"), QStringLiteral("dev2")}));

    DevInfo dev = FormFixture::device(2);
    dev.name.clear();
    dev.ip = QStringLiteral("9.9.9.9");
    store().updateDevs({dev, FormFixture::device(7)});
    QCOMPARE(f.column(Name).at(1), QString()); // unlike a new row, which shows the serial number instead
    QCOMPARE(f.column(Ip).at(1), dev.ip);
    QCOMPARE(f.table()->rowCount(), 3);
    dev.id = QStringLiteral("nameless");
    addOnline(dev);
    QCOMPARE(f.column(Name).at(3), dev.serialNumber);
    QCOMPARE(f.table()->item(3, Name)->toolTip(), dev.serialNumber);

    auto &data = orda_data::DataSignals::instance();
    emit data.signalUpdateDevs({FormFixture::device(2)}, false, true);
    emit data.signalDeleteDevs({QStringLiteral("dev0")}, false);
    QCOMPARE(f.column(Name).at(1), QString());
    QCOMPARE(f.table()->rowCount(), 4);
    store().deleteDevs({QStringLiteral("dev0"), QStringLiteral("dev2"), QStringLiteral("unknown")});
    QCOMPARE(f.column(OrderNum), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    QCOMPARE(f.form->checkedDevIds(), QStringList());
}

void DevlistTest::followsTheLogin()
{
    auto &saas = orda_saas::SaasWorker::instance();
    saas.setFreelyOperable({QStringLiteral("SN8")});
    const FormFixture f(2, silent);
    DevInfo cloud = FormFixture::device(8);
    cloud.ip.clear();
    addOnline(cloud);
    QCOMPARE(f.table()->rowCount(), 3);

    saas.setFreelyOperable({});
    emit orda_saas::LoginSignals::instance().signalSaasLogoutSuccess();
    QCOMPARE(f.column(SerialNumber), (QStringList{QStringLiteral("SN0"), QStringLiteral("SN1")}));

    f.searchEdit()->setText(QStringLiteral("cam 1"));
    saas.setFreelyOperable({QStringLiteral("SN8")});
    emit orda_saas::LoginSignals::instance().signalEnterpriseStatus(0);
    QCOMPARE(f.table()->rowCount(), 3);
    QCOMPARE(f.column(SerialNumber), QStringList{QStringLiteral("SN1")});
    saas.setFreelyOperable({});
}

void DevlistTest::searchesAndKeepsCheckMarks()
{
    const FormFixture f(30, silent);
    auto *search = f.searchEdit();
    f.table()->item(4, OrderNum)->setCheckState(Qt::Checked);
    f.table()->item(12, OrderNum)->setCheckState(Qt::Checked);

    QTest::keyClicks(search, QStringLiteral("CAM 1"));
    QCOMPARE(f.column(OrderNum).size(), 11); // 1, 10 to 19
    QCOMPARE(f.column(OrderNum).constLast(), QStringLiteral("11"));
    QCOMPARE(f.form->checkedDevIds(), QStringList{QStringLiteral("dev12")});
    f.tickAll(); // touches no row that is hidden
    search->setText(QStringLiteral("sn29"));
    QCOMPARE(f.column(SerialNumber), QStringList{QStringLiteral("SN29")});
    search->setText(QStringLiteral("0.0.30"));
    QCOMPARE(f.column(Ip), QStringList{QStringLiteral("10.0.0.30")});

    addOnline(FormFixture::device(40)); // hidden at once
    QCOMPARE(f.column(Ip).size(), 1);
    search->clear();
    QCOMPARE(f.column(Ip).size(), 31);
    QCOMPARE(f.form->checkedDevIds().size(), 12); // the eleven and number 4
}

void DevlistTest::sortsByHeaders()
{
    const FormFixture f(12, silent);
    f.table()->item(11, OrderNum)->setCheckState(Qt::Checked);
    DevInfo dev = FormFixture::device(3);
    dev.ip = QStringLiteral("9.0.0.200");
    store().updateDevs({dev});
    const auto click = [&f](const char *header) {
        QTest::mouseClick(f.form->findChild<QWidget *>(QLatin1String(header)), Qt::LeftButton);
    };
    click("devIp");
    QCOMPARE(f.column(Ip).constFirst(), dev.ip);
    QCOMPARE(f.column(Ip).constLast(), QStringLiteral("10.0.0.12"));
    for (int i = 0; i < 2; ++i) { // the second click does not reverse
        click("devName");
        QCOMPARE(f.column(Name).at(2), QStringLiteral("Cam 2"));
        QCOMPARE(f.column(Name).constLast(), QStringLiteral("Cam 11"));
    }
    const QStringList order = f.column(OrderNum);
    QCOMPARE(order.constFirst(), QStringLiteral("1"));
    click("orderNumWt");
    QCOMPARE(f.column(OrderNum), order);
    QCOMPARE(f.form->checkedDevIds(), QStringList{QStringLiteral("dev11")});

    f.searchEdit()->setText(QStringLiteral("cam 1"));
    click("devSn"); // the hidden rows stay hidden
    QCOMPARE(f.column(SerialNumber),
             (QStringList{QStringLiteral("SN1"), QStringLiteral("SN10"), QStringLiteral("SN11")}));
}

void DevlistTest::contextMenuOpensTheDevice()
{
    const FormFixture f(2, silent);
    QSignalSpy opened(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened);
    auto *menu = f.table()->findChild<QMenu *>();
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("Remote Set"));

    emit f.table()->customContextMenuRequested(QPoint(10, f.table()->height() - 2));
    QVERIFY(!menu->isVisible());
    QTimer::singleShot(0, menu, [menu] {
        menu->actions().constFirst()->trigger();
        menu->close();
    });
    emit f.table()->customContextMenuRequested(f.table()->visualItemRect(f.table()->item(1, Name)).center());
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.at(0).at(0).toString(), QStringLiteral("dev1"));
}

void DevlistTest::contextMenuSurvivesItsRowAndItsForm()
{
    QSignalSpy opened(&orda_base::BaseTools::instance(), &orda_base::BaseTools::signalDevRemoteConfigOpened);
    const FormFixture f(2, silent);
    auto *menu = f.table()->findChild<QMenu *>();
    const QPoint second = f.table()->visualItemRect(f.table()->item(1, Ip)).center();
    QTimer::singleShot(0, menu, [menu] {
        store().setDevStatus(QStringLiteral("dev1"), vms_sdk::DevOffline);
        menu->actions().constFirst()->trigger();
        menu->close();
    });
    emit f.table()->customContextMenuRequested(second);
    QCOMPARE(opened.count(), 0);

    QTimer::singleShot(0, menu, [&f] { delete f.form; });
    emit f.table()->customContextMenuRequested(QPoint(10, 10));
    QVERIFY(f.form.isNull());
}

void DevlistTest::saysWhyItIsEmpty()
{
    const FormFixture f(0, silent);
    const auto *hint = f.form->findChild<QLabel *>(QStringLiteral("emptyListHint"));
    const auto hintText = [hint] {
        return hint->isVisible() ? hint->text().section(QLatin1Char(' '), 0, 2) : QString();
    };
    QTRY_COMPARE(hintText(), QStringLiteral("There are no"));

    DevInfo dev = FormFixture::device(1);
    dev.kindCode = 9;
    store().updateDevs({dev});
    QTRY_COMPARE(hintText(), QStringLiteral("No device is"));
    store().setDevStatus(dev.id, vms_sdk::DevOnline);
    QTRY_COMPARE(hintText(), QStringLiteral("None of the"));
    addOnline(FormFixture::device(2));
    QTRY_COMPARE(hintText(), QString());
    f.searchEdit()->setText(QStringLiteral("nowhere"));
    QTRY_COMPARE(hintText(), QStringLiteral("No device in"));
    f.searchEdit()->clear();
    QTRY_COMPARE(hintText(), QString());
    store().setDevStatus(QStringLiteral("dev2"), vms_sdk::DevOffline);
    QTRY_COMPARE(hintText(), QStringLiteral("None of the"));
    QCOMPARE(f.table()->accessibleDescription(), hint->text());
}

void DevlistTest::saysWhyItIsEmptyWhereItIsSeen()
{
    const FormFixture f(200, silent);
    f.table()->scrollToBottom();
    f.form->hide();
    f.searchEdit()->setText(QStringLiteral("nowhere"));
    f.form->show();
    const auto *hint = f.form->findChild<QLabel *>(QStringLiteral("emptyListHint"));
    QTRY_VERIFY(hint->isVisible());
    QCOMPARE(hint->geometry(), f.table()->viewport()->rect());
    f.searchEdit()->clear();
    QTRY_VERIFY(!hint->isVisible() && f.table()->accessibleDescription() != hint->text());
}

void DevlistTest::everyCallMakesAForm()
{
    auto &entry = orda_batchCfg::BatchCfgInit::instance();
    const std::unique_ptr<orda_base::BaseForm> first(entry.createBatchCfgForm());
    const std::unique_ptr<orda_base::BaseForm> second(entry.createBatchCfgForm());
    QVERIFY(first && second && first != second);
    QVERIFY(!first->parent());
    QCOMPARE(first->formType(), 8);
}

ORDA_TEST_MAIN(DevlistTest)
#include "devlist_test.moc"
