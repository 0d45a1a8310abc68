#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include <vms_client_sdk/ClientSignals.h>

using namespace std::chrono_literals;
using namespace device_fleet;

namespace {

constexpr int devices = 300;
constexpr auto waitingTime = 1500ms;

/// One device in two has a fault, any of them, at any request.
FaultPlan randomFaults(const FamilyRow &family, QRandomGenerator &random)
{
    FaultPlan plan;
    for (int i = 1; i <= devices; ++i) {
        const QString method = family.methods.at(random.bounded(family.methods.size()));
        FaultRule rule;
        rule.fault = Fault(random.bounded(int(Fault::DropAndReturn) + 1));
        rule.delay = std::chrono::milliseconds(random.bounded(1, 800));
        rule.returnWith = ReturnWith(random.bounded(int(ReturnWith::MissingMember) + 1));
        if (random.bounded(2) == 0)
            plan.set(QString::asprintf("dev-%04d", i), method, rule);
    }
    return plan;
}

} // namespace

/// A site at its worst: half of its devices faulty, others leaving and returning while they are configured.
/// ORDA_STORM_SEEDS sets how many seeds each family is tried with; without it three families take one each.
class StormTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void everyDeviceIsReportedOnce_data()
    {
        columns<FamilyRow, int>({"family", "seed"});
        const int seeds = qMax(1, qEnvironmentVariableIntValue("ORDA_STORM_SEEDS"));
        const QList<FamilyRow> families = stormedFamilies();
        for (const FamilyRow &family : families)
            for (int seed = 1; seed <= seeds; ++seed)
                QTest::addRow("%s, seed %d", qPrintable(family.name), seed) << family << seed;
    }

    void everyDeviceIsReportedOnce()
    {
        allowWarnings("message over 1024 KiB"); // the fault of the huge answer
        QFETCH(FamilyRow, family);
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        FleetSite site(devices, waitingTime, randomFaults(family, random), quint32(seed));
        const SiteClient &client = site.client;
        QTRY_VERIFY(client.table()->rowCount() >= 240);
        client.tickAll();
        const QStringList ticked = client.form.checkedDevIds();
        QTimer leaving;
        QStringList away;
        connect(&leaving, &QTimer::timeout, this, [&] {
            if (away.size() > 10)
                site.fleet.setOnline(away.takeFirst(), true);
            away.append(ticked.at(random.bounded(ticked.size())));
            site.fleet.setOnline(away.constLast(), false);
        });
        leaving.start(7ms);
        QTimer::singleShot(1s, &leaving, [&] { // then it calms down
            leaving.stop();
            for (const QString &id : qAsConst(away))
                site.fleet.setOnline(id, true);
        });
        QElapsedTimer sinceSignOfLife;
        const auto connection = connect(&vms_sdk::ClientSignals::instance(), &vms_sdk::ClientSignals::signalCommonRes,
                                        this, [&] { sinceSignOfLife.start(); });
        sinceSignOfLife.start();
        const QString summary = client.configure(family);
        disconnect(connection);
        QVERIFY2(sinceSignOfLife.elapsed() < 2 * waitingTime.count(),
                 qPrintable(QString::number(sinceSignOfLife.elapsed())));

        QFile record(recordPath(family));
        QVERIFY(record.open(QIODevice::ReadOnly));
        const QByteArray text = record.readAll();
        QCOMPARE(text.count("\n\n"), ticked.size());
        const int successes = text.count(" success ");
        QCOMPARE(recordedMessages(family).size(), ticked.size()); // each by its own serial number
        QCOMPARE(summary, summaryOf(successes, ticked.size() - successes));
    }
};

ORDA_TEST_MAIN(StormTest)
#include "storm_test.moc"
