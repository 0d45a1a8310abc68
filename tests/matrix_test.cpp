#include "support/OrdaTest.h"
#include "support/SiteClient.h"

using namespace std::chrono_literals;
using namespace device_fleet;

namespace {

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
    const bool isChecked = family.name == "platform" && step == 1;
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

} // namespace

/// Every fault that a device can have, at every request of a family: one run a family, one device a cell.
class MatrixTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void everyFaultAtEveryRequest_data()
    {
        columns<FamilyRow>({"family"});
        const QList<FamilyRow> families = stormedFamilies();
        for (const FamilyRow &family : families)
            row(qPrintable(family.name), family);
    }

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
};

ORDA_TEST_MAIN(MatrixTest)
#include "matrix_test.moc"
