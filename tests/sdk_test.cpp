#include "support/OrdaTest.h"
#include "support/ScriptedTransport.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ClientSdk.h>
#include <vms_client_sdk/ClientSignals.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/PendingRequests.h>
#include <vms_client_sdk/Requests.h>
#include <vms_client_sdk/SignOn.h>

using namespace vms_sdk;
using namespace std::chrono_literals;
using orda_data::DataSignals;
using orda_data::DevsMgrData;

namespace {

/// Answers from inside send(), the worst that a transport may do.
std::unique_ptr<ScriptedTransport> eagerTransport()
{
    return std::make_unique<ScriptedTransport>([](const auto &request) { return QStringList(request.text); });
}

DevInfo device(const QString &id)
{
    DevInfo info;
    info.id = id;
    return info;
}

void request(const char *id)
{
    common_req(QString::fromLatin1(id), "d", "text");
}

} // namespace

/// The parts of the SDK and the device store that need no socket.
class SdkTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        ClientSdk::instance().setTransport(nullptr);
        OrdaTest::cleanup();
    }

    void everyIdEndsAtItsOwnTickNeitherEarlyNorLate_data() { seeds(20); }

    void everyIdEndsAtItsOwnTickNeitherEarlyNorLate()
    {
        QFETCH(int, seed);
        // Against the plainest model there is: requests and renewals in runs, at random and of unknown ids, time-outs
        // in between.
        QRandomGenerator random(seed);
        PendingRequests pending;
        pending.setTimeout(100ms); // a tick of 10 ms
        QStringList shared;
        for (int id = 0; id < 50; ++id)
            shared.append(QString::number(id));
        // The same text or another one that reads the same.
        const auto text = [&](int id) { return random.bounded(4) == 0 ? QString::number(id) : shared.at(id); };
        QMap<int, qint64> model;
        int next = 0;
        for (qint64 now = 0; now < 5'000; now += random.bounded(4)) {
            pending.advanceTo(now);
            QCOMPARE(pending.untilNextTick(), 10 - now % 10);
            const int id = random.bounded(50);
            const qint64 deadline = (now + 109) / 10 * 10;
            next = random.bounded(8) == 0 ? id : (next + 1) % 50;
            if (random.bounded(4) == 0)
                pending.add(text(id)), model[id] = deadline;
            pending.renew(text(next));
            if (model.contains(next))
                model[next] = deadline;
            const QStringList due = pending.takeDue();
            for (const QString &taken : due)
                QVERIFY(model.value(taken.toInt(), now + 1) <= now && model.remove(taken.toInt()) == 1);
            QVERIFY(std::all_of(model.cbegin(), model.cend(), [now](qint64 waiting) { return waiting > now; }));
            QCOMPARE(pending.isEmpty(), model.isEmpty());
        }
    }

    void renewalFromAnywhereGivesAWholeWaitingTime()
    {
        ClientSdk::instance().setRequestTimeout(200ms);
        for (const auto phase : {105ms, 112ms, 119ms}) { // within a tick of 20 ms
            const QSignalSpy timeouts(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout);
            request("id");
            QElapsedTimer sinceRenewal;
            QTimer::singleShot(phase, this, [&sinceRenewal] {
                renewal_request_id("id");
                sinceRenewal.start();
            });
            QTRY_COMPARE(timeouts.count(), 1);
            QVERIFY2(sinceRenewal.elapsed() >= 199, qPrintable(QString::number(sinceRenewal.elapsed())));
        }
    }

    void anotherWaitingTimeCountsFromTheNextRequestOn()
    {
        const QSignalSpy timeouts(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout);
        ClientSdk::instance().setRequestTimeout(20s);
        request("long");
        ClientSdk::instance().setRequestTimeout(20ms);
        request("short");
        QTRY_COMPARE_WITH_TIMEOUT(timeouts.count(), 1, 1000); // a tick of the long one takes two seconds
    }

    void answersComeFromTheEventLoopBeforeTheTimeOut()
    {
        ClientSdk::instance().setRequestTimeout(20ms);
        ClientSdk::instance().setTransport(eagerTransport());
        QStringList order;
        QObject context;
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, &context,
                [&](const QString &id, const QString &text) { order.append(id + ": " + text); });
        connect(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout, &context,
                [&](const QString &id) { order.append(id + ": time-out"); });
        request("dropped with its transport");
        ClientSdk::instance().setTransport(eagerTransport());
        request("r");
        QVERIFY(order.isEmpty());
        QThread::msleep(50); // a busy user interface
        QTRY_COMPARE(order, QStringList({"r: text", "r: time-out"}));
    }

    void manyAnswersAtOnceLeaveTheEventLoopItsTurns()
    {
        auto eager = eagerTransport();
        auto *transport = eager.get();
        ClientSdk::instance().setTransport(std::move(eager));
        const int count = 100;
        QStringList order;
        int turns = 0;
        QObject context;
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, &context,
                [&](const QString &id, const QString &) {
                    order.append(id);
                    QThread::msleep(1);
                    if (order.size() == 50) // waits in a loop of its own for answers that stand behind it
                        QTRY_VERIFY(order.size() >= 60);
                });
        QTimer timer;
        connect(&timer, &QTimer::timeout, &context, [&] { turns += order.size() < count ? 1 : 0; });
        timer.start(1);
        QStringList sent;
        for (int i = 0; i < count; ++i) {
            sent.append(QString::number(i));
            emit transport->answered(sent.constLast(), QString());
        }
        QTRY_COMPARE(order, sent);
        QVERIFY2(turns >= 5, qPrintable(QString::number(turns)));
    }

    void listenersMayDoAnythingInsideASignal()
    {
        ClientSdk::instance().setRequestTimeout(20ms);
        QString timedOut;
        QObject context;
        connect(&ClientSignals::instance(), &ClientSignals::signalRequestTimeout, &context,
                [&timedOut](const QString &id) {
                    timedOut += id;
                    renewal_request_id(id); // taken out: nothing to renew
                    if (id == "1") {
                        request("a");
                        QTRY_COMPARE(timedOut, "12a"); // the others' time-outs reach an event loop in here
                    } else if (id == "3") {
                        ClientSdk::instance().setTransport(eagerTransport());
                    }
                });
        request("1");
        request("2");
        QTRY_COMPARE(timedOut, "12a");
        request("3");
        request("dropped with its transport");
        QTRY_COMPARE(timedOut, "12a3");

        QSignalSpy answers(&ClientSignals::instance(), &ClientSignals::signalCommonRes);
        connect(&ClientSignals::instance(), &ClientSignals::signalCommonRes, &context,
                [] { ClientSdk::instance().setTransport(nullptr); });
        request("5");
        request("dropped with its transport");
        QTRY_COMPARE(answers.count(), 1);
        request("6");
        QTRY_COMPARE(timedOut, "12a36");
        QCOMPARE(answers.count(), 1);
    }

    void signOnProofsAreThoseOfTheProtocolPage()
    {
        const QByteArray deviceNonce("AAECAwQFBgcICQoLDA0ODw=="), clientNonce("EBESExQVFhcYGRobHB0eHw==");
        const QString password = "Gr\u00fcn-7!";
        QCOMPARE(signOnProof(SignOnSide::Client, password, deviceNonce, clientNonce),
                 QByteArray("kxWP5SulC8vjo0qwWUUcCEqlfrV2lVEvIU3e5sCIC9o="));
        QCOMPARE(signOnProof(SignOnSide::Device, password, deviceNonce, clientNonce),
                 QByteArray("LqPyeM0vyijqAYmVBVhG4w5VsF1D8bTI3i5eL3inUz0="));
        QVERIFY(isNonceLongEnough(makeNonce()) && makeNonce() != makeNonce());
        QVERIFY(!isNonceLongEnough(QByteArray(15, 'x').toBase64()));
        QVERIFY(!isNonceLongEnough("<long enough, but not base64 at all>"));
    }

    void inventoryFaultsNameEntryAndField_data()
    {
        columns<QString, QString>({"entry", "error"});
        rowsFrom("inventory_faults.txt");
    }

    void inventoryFaultsNameEntryAndField()
    {
        QFETCH(QString, entry);
        QFETCH(QString, error);
        const QString id = entry.contains("'id'") ? "" : "'id': 'cam', ";
        const QString first = "{'id': 'first', 'ip': '10.0.0.1', 'port': 1, 'serialNumber': 'S'}";
        const Inventory inventory = readInventory(fileWith("{'devices': [" + first + ", {" + id + entry + "}]}"));
        QCOMPARE(inventory.devices.size(), error.isEmpty() ? 2 : 0);
        QCOMPARE(inventory.error.isEmpty(), error.isEmpty());
        const QRegularExpression expected(error.replace('\'', '"'));
        QVERIFY2(expected.match(inventory.error).hasMatch(), qPrintable(inventory.error));
        QVERIFY(!holdsInvisible(inventory.error)); // it is quoted on terminals
    }

    void whatCannotBeSeenIsShownForWhatItIs_data()
    {
        columns<QString, QString>({"text", "log"}); // empty: the same
        row("ordinary letters", QString("T\u00fcr <b>\\ \u4e2d\u6587 \u05d0\u05d1 \U0001F600"), "");
        for (const uint mark : {0x1bU, 0x85U, 0x2028U, 0x61cU, 0x200bU, 0x200fU, 0x202aU, 0x202eU, 0x2060U, 0x2065U,
                                0x2069U, 0xfeffU, 0xd800U, 0xdfffU}) {
            const QByteArray number = QByteArray::number(mark, 16).rightJustified(4, '0');
            row(number, QString("a%1b").arg(QChar(ushort(mark))), "a\\u" + QString(number) + 'b');
        }
        row("tag", QString("a\U000E0041b"), "a\\U000e0041b");
    }

    void whatCannotBeSeenIsShownForWhatItIs()
    {
        QFETCH(QString, text);
        QFETCH(QString, log);
        QCOMPARE(holdsInvisible(text), !log.isEmpty());
        QCOMPARE(escaped(text), log.isEmpty() ? text : log);
        QCOMPARE(displayText(text), log.isEmpty() ? text : QString("a%1b").arg(QChar(0xfffd)));
        QCOMPARE(escaped(text + '\n', "\n"), escaped(text) + '\n');
    }

    void inventoryFilesSurviveARoundTripAndStayPrivate()
    {
        DevInfo camera = device("c"), recorder = device("r");
        camera.ip = "10.0.1.2";
        camera.ipNumber = 0x0a000102;
        camera.port = 443;
        camera.tls = true;
        camera.fingerprint = QString(64, 'a');
        camera.password = "p";
        camera.accessCode = 2;
        camera.group = "north";
        recorder.url = "ws://relay.example/r";
        recorder.kindCode = 6;
        const QString path = m_dir.filePath("written.json");
        QCOMPARE(writeInventory(path, {camera, recorder}), QString());
        QCOMPARE(readInventory(path).devices, QList<DevInfo>({camera, recorder}));
        for (const QFile::Permission others :
             {QFile::ReadGroup, QFile::ReadOther, QFile::WriteGroup, QFile::WriteOther}) {
            QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner | others);
            QVERIFY(readInventory(path).error.contains("0600"));
        }
        QVERIFY(!writeInventory(m_dir.filePath("none/x.json"), {camera}).isEmpty());
        QVERIFY(!inventoryToJson({camera}).value("devices")[0].toObject().contains("protocol")); // as it always was

        const QString onvif = "{'protocol': 'onvif', 'id': '%1', 'ip': '10.0.0.%1', 'tls': %2}";
        const Inventory cameras =
            readInventory(fileWith("{'devices': [" + onvif.arg("7", "false") + ", " + onvif.arg("8", "true") + "]}"));
        QCOMPARE(deviceUrl(cameras.devices.value(0)), QUrl("http://10.0.0.7:80/onvif/device_service"));
        QCOMPARE(deviceUrl(cameras.devices.value(1)), QUrl("https://10.0.0.8:443/onvif/device_service"));
        QCOMPARE(writeInventory(path, cameras.devices), QString());
        QCOMPARE(readInventory(path).devices, cameras.devices);

        QList<DevInfo> many;
        for (int i = 0; i < 100'000; ++i) {
            many.append(device(QString::number(i)));
            many.last().url = QStringLiteral("ws://relay.example/%1").arg(i);
        }
        QCOMPARE(writeInventory(path, many), QString());
        QCOMPARE(readInventory(path).devices.size(), many.size());

        const Inventory typo =
            readInventory(fileWith("{'devices': [{'id': 'a', 'ip': '10.0.0.1', 'port': 1, 'pass\\u001bword': ''}]}"));
        QVERIFY(typo.devices.size() == 1 && typo.warnings.value(0).contains("\"pass\\u001bword\""));
    }

    void theStoreFollowsTheSdkAndKeepsTheOrder()
    {
        DevsMgrData &store = DevsMgrData::instance();
        QSignalSpy states(&DataSignals::instance(), &DataSignals::signalDevStatusChanged);
        QSignalSpy updates(&DataSignals::instance(), &DataSignals::signalUpdateDevs);
        QSignalSpy deletions(&DataSignals::instance(), &DataSignals::signalDeleteDevs);
        const QString b = "b", a = "a", c = "c";
        store.updateDevs({device(b), device(a), device(c)});
        emit ClientSignals::instance().signalDevStatusChanged(a, DevLocked);
        store.setDevStatus(a, DevLocked);
        store.setDevStatus(b, DevRefused);
        store.setDevStatus("stranger", DevOnline);
        QCOMPARE(states.count(), 2);
        const LinkTrouble silent{TroubleReason::NoAnswer, "no sign-on in time", 1};
        for (const QString &id : {b, c, QString("stranger")})
            emit ClientSignals::instance().signalDevTroubled(id, silent);
        QCOMPARE(store.getDevTrouble(b), silent);
        QCOMPARE(store.getDevTrouble("stranger"), LinkTrouble());
        QCOMPARE(store.getAllDevs(true), QList<DevInfo>({device(a)}));

        DevInfo renamed = device(a);
        renamed.name = "gate";
        store.updateDevs({renamed});
        QCOMPARE(updates.at(1).at(0).value<QList<DevInfo>>(), QList<DevInfo>({renamed}));
        QCOMPARE(store.getDevStatus(a), DevLocked);

        store.deleteDevs({b, a});
        QCOMPARE(deletions.at(0), QVariantList({QStringList({b, a}), true}));
        QCOMPARE(store.getDevInfoById(b), DevInfo());
        store.updateDevs({device(a)});
        QCOMPARE(store.getAllDevs(false), QList<DevInfo>({device(c), device(a)}));
        QCOMPARE(store.getDevStatus(a), DevOffline);
        store.setDevStatus(c, DevOnline);
        QCOMPARE(store.getDevStatus(c), DevOnline);
        QCOMPARE(store.getDevTrouble(c), LinkTrouble());
    }

private:
    QString fileWith(QString content)
    {
        QFile file(m_dir.filePath("inventory.json"));
        if (file.open(QIODevice::WriteOnly))
            file.write(content.replace('\'', '"').toUtf8());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return file.fileName();
    }

    QTemporaryDir m_dir;
};

ORDA_TEST_MAIN(SdkTest)
#include "sdk_test.moc"
