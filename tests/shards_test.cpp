#include "fleet/EmbeddedFleet.h"
#include "fleet/ThreadCall.h"
#include "support/OrdaTest.h"

#include <vms_client_sdk/WebSocketTransport.h>
#include <vms_client_sdk/websocket/DeviceLink.h>
#include <vms_client_sdk/websocket/LinkHost.h>

#include <QRandomGenerator>
#include <array>
#include <mutex>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

/// What a transport says, kept on whatever thread it is said.
class Witness : public QObject
{
public:
    explicit Witness(WebSocketTransport &transport)
    {
        connect(
            &transport, &DeviceTransport::devStatusChanged, this,
            [this](const QString &devId, DevStatus status) {
                const std::lock_guard lock(m_mutex);
                m_states[devId] = status;
                m_threads[devId].insert(QThread::currentThread());
                ++m_told;
            },
            Qt::DirectConnection);
    }

    QStringList online()
    {
        const std::lock_guard lock(m_mutex);
        QStringList ids;
        for (auto state = m_states.cbegin(); state != m_states.cend(); ++state)
            if (isOnlineStatus(*state))
                ids.append(state.key());
        ids.sort();
        return ids;
    }

    int told()
    {
        const std::lock_guard lock(m_mutex);
        return m_told;
    }

    /// Threads of the device with the most of them, and of all devices.
    QPair<int, int> threads()
    {
        const std::lock_guard lock(m_mutex);
        QSet<QThread *> all;
        int most = 0;
        for (const QSet<QThread *> &own : qAsConst(m_threads)) {
            all.unite(own);
            most = qMax(most, own.size());
        }
        return {most, all.size()};
    }

private:
    std::mutex m_mutex; // for all that follows
    QHash<QString, DevStatus> m_states;
    QHash<QString, QSet<QThread *>> m_threads;
    int m_told = 0;
};

WebSocketOptions manyThreads()
{
    WebSocketOptions options;
    options.firstBackOff = 1ms;
    options.lastBackOff = 10ms;
    options.maxSettingUp = 3;
    options.devicesPerThread = 4;
    options.maxThreads = 5;
    return options;
}

QStringList idsOf(const QList<DevInfo> &devices)
{
    QStringList ids;
    for (const DevInfo &device : devices)
        ids.append(device.id);
    ids.sort();
    return ids;
}

} // namespace

/// The devices of one transport on several network threads.
class ShardsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        device_fleet::FleetOptions options;
        options.devices = 40;
        m_fleet = std::make_unique<device_fleet::EmbeddedFleet>(options);
        QCOMPARE(m_fleet->start(), QString());
        m_site = m_fleet->inventory();
        for (const DevInfo &device : qAsConst(m_site))
            m_fleet->setOnline(device.id, true);
    }

    void whatIsAskedForLastHolds_data() { seeds(25); }

    /// Whatever is asked for, and however fast: in the end the devices that were set last are online, and no others;
    /// every second time the transport is ended before that.
    void whatIsAskedForLastHolds()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        WebSocketTransport transport(nullptr, manyThreads());
        Witness witness(transport);
        QList<DevInfo> devices;
        for (int step = 0; step < 30; ++step) {
            const QString id = m_site.at(random.bounded(m_site.size())).id;
            switch (random.bounded(7)) {
            case 0:
            case 1:
                devices = someOf(random);
                transport.setDevices(devices);
                break;
            case 2:
                transport.connectAgain();
                break;
            case 3:
                transport.connectDevicesAgain({id});
                break;
            case 4:
                transport.send(QStringLiteral("r"), id, QStringLiteral("{}"));
                break;
            case 5:
                m_fleet->setOnline(id, false); // cuts it
                m_fleet->setOnline(id, true);
                break;
            default:
                QTest::qWait(random.bounded(3));
            }
        }
        if (seed % 2 == 0) {
            // And it stays so: a cut that has not been noticed yet, or an earlier list, can look like the end.
            const auto holds = [&] {
                bool isSo = true;
                for (int i = 0; isSo && i < 20; ++i, QTest::qWait(1))
                    isSo = witness.online() == idsOf(devices) && m_fleet->connectedDevices() == devices.size();
                return isSo;
            };
            QTRY_VERIFY(holds());
        }
        transport.shutdown();
        const int told = witness.told();
        QTRY_COMPARE(m_fleet->connectedDevices(), 0);
        QCOMPARE(witness.told(), told); // nothing comes after it
        QVERIFY(witness.threads().first <= 1); // a device has one thread, also when it was away in between
    }

    void devicesAreSpreadEvenly()
    {
        WebSocketTransport transport(nullptr, manyThreads());
        Witness witness(transport);
        transport.setDevices(m_site.mid(0, 4));
        QTRY_COMPARE(witness.online(), idsOf(m_site.mid(0, 4)));
        QCOMPARE(witness.threads().second, 1);
        transport.setDevices(m_site); // more than five threads of four
        QTRY_COMPARE(witness.online(), idsOf(m_site));
        QCOMPARE(witness.threads(), qMakePair(1, 5));
    }

    /// Memory is that of all threads: who keeps the most is cut, whichever thread has noticed.
    void thoseWhoKeepTheMostAreCut()
    {
        SharedLimits shared({}, [] {});
        LinkHost one(shared, 0, nullptr), other(shared, 1, nullptr);
        std::array<int, 6> names{};
        const auto name = [&](int number) {
            return reinterpret_cast<DeviceLink *>(&names.at(number));
        }; // not looked at
        KeptMemory kept;
        constexpr qint64 quarter = KeptMemory::maxBytes / 4;
        kept.set(&one, name(1), 2 * quarter);
        kept.set(&other, name(2), quarter);
        kept.set(&other, name(3), quarter);
        QCOMPARE(kept.takeTooLarge(&one), nullptr); // just enough
        kept.set(&other, name(3), quarter + 1);
        QCOMPARE(kept.takeTooLarge(&other), nullptr);
        QCOMPARE(kept.takeTooLarge(&one), name(1));
        QCOMPARE(kept.takeTooLarge(&one), nullptr); // told once
        kept.set(&one, name(1), 0);
        kept.set(&one, name(4), 2 * quarter); // one byte too much again
        kept.set(&one, name(4), 3 * quarter); // and what is to be cut counts no more
        kept.set(&other, name(5), quarter);
        QCOMPARE(kept.takeTooLarge(&other), nullptr);
        kept.set(&one, name(4), 0); // gone before it was cut
        QCOMPARE(kept.takeTooLarge(&one), nullptr);
    }

    void aLinkOfAnotherThreadIsCut()
    {
        SharedLimits shared({}, [] {});
        LinkHost one(shared, 0, nullptr);
        QThread thread;
        auto *other = new LinkHost(shared, 1, nullptr);
        auto *link = new DeviceLink(m_site.constFirst(), *other); // never dialled
        other->moveToThread(&thread);
        link->moveToThread(&thread);
        connect(&thread, &QThread::finished, link, [=] {
            delete link;
            delete other;
        });
        thread.start();
        int name = 0;
        shared.unfinished.set(other, link, KeptMemory::maxBytes);
        expectWarning("does not finish its message");
        one.setUnfinished(reinterpret_cast<DeviceLink *>(&name), 1);
        device_fleet::callOnThreadOf(other, [] {}); // what was posted before is done
        QCOMPARE(shared.unfinished.takeTooLarge(other), nullptr);
        thread.quit();
        thread.wait();
    }

private:
    /// Devices in any order, some of them with another record than before.
    QList<DevInfo> someOf(QRandomGenerator &random) const
    {
        QList<DevInfo> devices;
        for (const DevInfo &device : m_site)
            if (random.bounded(3) > 0)
                devices.insert(random.bounded(devices.size() + 1), device);
        for (int i = 0; i < devices.size(); i += 5)
            devices[i].name = QString::number(random.bounded(2));
        return devices;
    }

    std::unique_ptr<device_fleet::EmbeddedFleet> m_fleet;
    QList<DevInfo> m_site;
};

ORDA_TEST_MAIN(ShardsTest)
#include "shards_test.moc"
