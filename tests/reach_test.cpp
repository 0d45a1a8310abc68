#include "engine/Reach.h"
#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"
#include "support/Store.h"

#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>

using namespace orda_engine;
using namespace vms_sdk;

namespace {

/// A camera that the list has left out before it got so far.
DevInfo camera(const QString &ip = "10.0.0.1", const QString &password = {})
{
    DevInfo dev;
    dev.id = dev.serialNumber = "cam";
    dev.ip = ip;
    dev.password = password;
    dev.accessCode = dev.kindCode = 1;
    return dev;
}

LinkTrouble trouble(TroubleReason reason, qint64 offlineSince = 0)
{
    return {reason, "a detail", offlineSince};
}

} // namespace

/// What a program and its user read of a device that cannot be written to.
class ReachTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        ClientSdk::instance().setTransport(nullptr);
        clearStore();
        OrdaTest::cleanup();
    }

    void whatIsLeftOutComesWithItsReason_data()
    {
        columns<DevInfo, DevStatus, LinkTrouble, QString, QString>({"dev", "status", "trouble", "name", "text"});
        const LinkTrouble none;
        row("nothing against it", camera(), DevOnline, none, "none", "");
        row("locked, with an address", camera(), DevLocked, none, "none", "");
        DevInfo dev = camera();
        dev.accessCode = 2;
        row("not direct, whatever its kind", dev, DevOffline, none, "not-direct", "not reached directly");
        dev = camera();
        dev.kindCode = 2;
        row("another kind", dev, DevOffline, none, "kind", "neither a camera nor a recorder");
        const auto withoutIp = [](const char *name, const char *password, DevStatus status, const char *words) {
            row(name, camera({}, password), status, LinkTrouble(), name, "no IP address, and " + QString(words));
        };
        withoutIp("factory-password", "Long-Enough-1", DevDefaultPassword, "still with its factory password");
        withoutIp("locked", "Long-Enough-1", DevLocked, "locked");
        withoutIp("no-password", "", DevOnline, "no password");
        withoutIp("weak-password", "12345", DevOnline, "a weak password");
        row("a good password", camera({}, "Long-Enough-1"), DevOnline, none, "none", "");

        const auto failed = [](const char *name, TroubleReason reason, const char *words,
                               DevStatus status = DevOffline) {
            row(name, camera(), status, trouble(reason), name, words);
        };
        failed("password", TroubleReason::Password, "refused: user name or password", DevRefused);
        failed("serial-number", TroubleReason::SerialNumber, "refused: the serial number is another one", DevRefused);
        failed("sign-on", TroubleReason::SignOn, "does not sign on as it should", DevRefused);
        failed("certificate", TroubleReason::Certificate, "certificate not accepted");
        failed("tls", TroubleReason::Tls, "no secure connection");
        failed("connection-refused", TroubleReason::ConnectionRefused, "connection refused", DevConnecting);
        failed("no-answer", TroubleReason::NoAnswer, "no answer");
        failed("no-address", TroubleReason::NoAddress, "no address, or its name is not known");
        failed("limits", TroubleReason::Limits, "cut off: it went beyond a limit");
        failed("offline", TroubleReason::ConnectionLost, "off line");
        failed("connecting", TroubleReason::None, "connecting", DevConnecting);

        const QDateTime today(QDate::currentDate(), QTime(14, 2, 11)), earlier(QDate(2026, 3, 4), QTime(5, 6, 7));
        row("lost today", camera(), DevConnecting, trouble(TroubleReason::ConnectionLost, today.toMSecsSinceEpoch()),
            "offline", "off line since 14:02:11");
        row("lost long ago, and silent since", camera(), DevOffline,
            trouble(TroubleReason::NoAnswer, earlier.toMSecsSinceEpoch()), "no-answer",
            "no answer, off line since 2026-03-04 05:06:07");
    }

    void whatIsLeftOutComesWithItsReason()
    {
        QFETCH(DevInfo, dev);
        QFETCH(DevStatus, status);
        QFETCH(LinkTrouble, trouble);
        QFETCH(QString, name);
        QFETCH(QString, text);
        auto scripted = std::make_unique<ScriptedTransport>(silent);
        ScriptedTransport *transport = scripted.get();
        ClientSdk::instance().setTransport(std::move(scripted));
        orda_data::DevsMgrData::instance().updateDevs({dev});
        if (!isOnlineStatus(status))
            emit transport->linkTroubled(dev.id, trouble);
        const QSignalSpy told(&ClientSignals::instance(), &ClientSignals::signalDevStatusChanged);
        emit transport->devStatusChanged(dev.id, status);
        QTRY_COMPARE(told.size(), 1);
        const Reach reach = reachOf(dev.id);
        QCOMPARE(reach.canBeWritten, name == "none");
        QCOMPARE(reachName(reach.reason), name);
        QCOMPARE(reach.text, text);
    }

    void nothingIsKnownOfStrangers()
    {
        const Reach reach = reachOf("stranger");
        QVERIFY(!reach.canBeWritten);
        QCOMPARE(reachName(reach.reason), "no-such-device");
        QCOMPARE(reach.text, "no such device");
    }

    void aDeviceThatIsBackHasNoTroubleLeft()
    {
        auto &store = orda_data::DevsMgrData::instance();
        store.updateDevs({camera()});
        QCOMPARE(reachOf("cam").text, "off line"); // nothing was told yet
        store.setDevTrouble("cam", trouble(TroubleReason::NoAnswer));
        store.setDevStatus("cam", DevOnline);
        store.setDevStatus("cam", DevOffline);
        QCOMPARE(reachOf("cam").text, "off line");
        store.setDevStatus("cam", DevRefused);
        QCOMPARE(reachOf("cam").text, "sign-on refused");
    }
};

ORDA_TEST_MAIN(ReachTest)
#include "reach_test.moc"
