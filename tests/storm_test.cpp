#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include <families/Families.h>
#include <vms_client_sdk/ClientSignals.h>

using namespace std::chrono_literals;
using namespace device_fleet;

namespace {

constexpr int devices = 300;
constexpr auto waitingTime = 1500ms;

QList<FaultRule> faults()
{
    QList<FaultRule> all;
    for (int fault = 0; fault < int(Fault::DropAndReturn); ++fault)
        all.append({Fault(fault), -5, Fault(fault) == Fault::LateAnswer ? 500ms : 0ms});
    for (const ReturnWith returnWith : {ReturnWith::NewSettings, ReturnWith::OldSettings, ReturnWith::MissingMember})
        all.append({Fault::DropAndReturn, 0, 300ms, returnWith});
    return all;
}

/// What the operator reads of a device that has the fault at one request of a run.
QString outcome(const FamilyRow &family, int step, const FaultRule &rule)
{
    // Cloud settings are read again when the device is back, once they were sent.
    const auto entry = std::find_if(orda_batchCfg::Families::all().begin(), orda_batchCfg::Families::all().end(),
                                    [&family](const auto &each) { return each.family.name == family.name; });
    const bool isChecked = step % 2 == 1 && entry->family.exchanges.at(step / 2).checkWhenBack;
    QString success = "success";
    QString asChecked = isChecked ? success : family.timeoutText;
    QString asRefused = isChecked ? family.failures.at(step).arg(-1) : family.timeoutText;
    switch (rule.fault) {
    case Fault::ErrorCode:
        return family.failures.at(step).arg(rule.errorCode);
    case Fault::Garbage:
        return "Failed to parse json data";
    case Fault::LateAnswer:
    case Fault::AnswerTwice:
    case Fault::NoResult: // the device is taken to have no parameters
        return success;
    case Fault::NoAnswer:
    case Fault::ForeignId:
    case Fault::ForeignMethod:
        return family.timeoutText;
    case Fault::HugeAnswer: // written, but the connection is lost over the answer
        return asChecked;
    case Fault::DropConnection:
        return asRefused;
    case Fault::DropAndReturn:
        return rule.returnWith == ReturnWith::NewSettings ? asChecked : asRefused;
    }
    return {};
}

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

/// A site at its worst: every fault that a device can have, at every request of a family, one device a cell; then half
/// of the devices faulty and others leaving and returning while they are configured. ORDA_STORM_SEEDS sets how many
/// seeds each family is tried with; without it the one with the most requests, the one that checks its writes and one
/// of the others storm once each.
class StormTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void everyFaultAtEveryRequest_data() { addFamilies(1, qEnvironmentVariableIsSet("ORDA_STORM_SEEDS")); }

    void everyFaultAtEveryRequest()
    {
        allowWarnings("message over 1024 KiB"); // the fault of the huge answer
        QFETCH(FamilyRow, family);
        FleetSite site(120, 3s);
        const SiteClient &client = site.client;
        const int cells = faults().size() * family.methods.size();
        QTRY_VERIFY(client.table()->rowCount() >= cells);

        QMap<QString, std::pair<QString, QString>> expected; // name and message of each cell, by serial number
        const QList<FaultRule> all = faults();
        for (const FaultRule &fault : all) {
            for (int step = 0; step < family.methods.size(); ++step) {
                const int row = expected.size();
                client.table()->item(row, 0)->setCheckState(Qt::Checked);
                const QString &method = family.methods.at(step);
                site.fleet.setFault(client.idInRow(row), method, fault);
                const QString name = QString("fault %1 (%2) at ").arg(int(fault.fault)).arg(int(fault.returnWith));
                expected.insert(client.table()->item(row, 2)->text(), {name + method, outcome(family, step, fault)});
            }
        }
        QCOMPARE(expected.size(), cells);
        const QString summary = client.configure(family);

        const QMap<QString, QString> recorded = recordedMessages(family);
        int successes = 0;
        for (auto it = expected.begin(); it != expected.end(); ++it) {
            const auto &[name, message] = *it;
            successes += message == "success" ? 1 : 0;
            const QString said = name + ": " + recorded.value(it.key());
            QVERIFY2(said == name + ": " + message, qPrintable(said + ", not " + message));
        }
        QCOMPARE(recorded.size(), cells);
        QCOMPARE(summary, summaryOf(successes, cells - successes));
    }

    void everyDeviceIsReportedOnce_data()
    {
        addFamilies(qMax(1, qEnvironmentVariableIntValue("ORDA_STORM_SEEDS")),
                    qEnvironmentVariableIsSet("ORDA_STORM_SEEDS"));
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

private:
    static void addFamilies(int seeds, bool all)
    {
        columns<FamilyRow, int>({"family", "seed"});
        const QStringList few{"audio", "platform", "image"};
        const QList<FamilyRow> families = offeredFamilies();
        for (const FamilyRow &family : families)
            for (int seed = 1; seed <= seeds && (all || few.contains(family.name)); ++seed)
                QTest::addRow("%s, seed %d", qPrintable(family.name), seed) << family << seed;
    }
};

ORDA_TEST_MAIN(StormTest)
#include "storm_test.moc"
