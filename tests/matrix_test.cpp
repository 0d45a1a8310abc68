#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include "fleet/EmbeddedFleet.h"

#include <QApplication>
#include <QMap>

using namespace std::chrono_literals;
using namespace device_fleet;

namespace {

struct NamedFault
{
    QString name;
    FaultRule rule;
};

QList<NamedFault> faults()
{
    const auto away = 300ms;
    return {{QStringLiteral("error-code"), {Fault::ErrorCode, -5}},
            {QStringLiteral("garbage"), {Fault::Garbage}},
            {QStringLiteral("no-answer"), {Fault::NoAnswer}},
            {QStringLiteral("late-answer"), {Fault::LateAnswer, 0, 500ms}},
            {QStringLiteral("answer-twice"), {Fault::AnswerTwice}},
            {QStringLiteral("foreign-id"), {Fault::ForeignId}},
            {QStringLiteral("foreign-method"), {Fault::ForeignMethod}},
            {QStringLiteral("no-result"), {Fault::NoResult}},
            {QStringLiteral("huge-answer"), {Fault::HugeAnswer}},
            {QStringLiteral("drop-connection"), {Fault::DropConnection}},
            {QStringLiteral("returns with new settings"), {Fault::DropAndReturn, 0, away}},
            {QStringLiteral("returns with old settings"), {Fault::DropAndReturn, 0, away, ReturnWith::OldSettings}},
            {QStringLiteral("returns, one missing"), {Fault::DropAndReturn, 0, away, ReturnWith::MissingMember}}};
}

/// What the operator reads of a device that has the fault at one request of a run.
QString outcome(const FamilyRow &family, int step, const FaultRule &rule)
{
    // Cloud settings are read again when the device is back, once they were sent.
    const bool isChecked = family.name == QLatin1String("platform") && step == 1;
    QString success = QStringLiteral("success");
    QString asChecked = isChecked ? success : family.timeoutText;
    QString asRefused = isChecked ? family.failures.at(step).arg(-1) : family.timeoutText;
    switch (rule.fault) {
    case Fault::ErrorCode:
        return family.failures.at(step).arg(rule.errorCode);
    case Fault::Garbage:
        return QStringLiteral("Failed to parse json data");
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
        QTest::addColumn<FamilyRow>("family");
        const QList<FamilyRow> families = stormedFamilies();
        for (const FamilyRow &family : families)
            QTest::newRow(qPrintable(family.name)) << family;
    }

    void everyFaultAtEveryRequest()
    {
        allowWarnings(QStringLiteral("message over 1024 KiB")); // the fault of the huge answer
        QFETCH(FamilyRow, family);
        FleetOptions options;
        options.devices = 120;
        EmbeddedFleet fleet(options);
        QCOMPARE(fleet.start(), QString());
        const SiteClient client(fleet.inventory(), 3s);
        const int cells = faults().size() * family.methods.size();
        QTRY_VERIFY(client.table()->rowCount() >= cells);

        struct Cell
        {
            QString name, message;
        };
        QMap<QString, Cell> expected; // by serial number
        const QList<NamedFault> all = faults();
        for (const NamedFault &fault : all) {
            for (int step = 0; step < family.methods.size(); ++step) {
                const int row = expected.size();
                client.table()->item(row, 0)->setCheckState(Qt::Checked);
                fleet.setFault(client.idInRow(row), family.methods.at(step), fault.rule);
                expected.insert(
                    client.table()->item(row, 2)->text(),
                    {fault.name + QStringLiteral(" at ") + family.methods.at(step), outcome(family, step, fault.rule)});
            }
        }
        QCOMPARE(expected.size(), cells);
        const QString summary = client.configure(family);

        const QMap<QString, QString> recorded = recordedMessages(family);
        int successes = 0;
        for (auto it = expected.begin(); it != expected.end(); ++it) {
            successes += it->message == QLatin1String("success") ? 1 : 0;
            QVERIFY2(recorded.value(it.key()) == it->message,
                     qPrintable(it->name + QStringLiteral(": \"") + recorded.value(it.key())
                                + QStringLiteral("\", not \"") + it->message));
        }
        QCOMPARE(recorded.size(), cells);
        QCOMPARE(summary, QStringLiteral("A total of %1 devices have been configured, success:%2, failure:%3")
                              .arg(cells)
                              .arg(successes)
                              .arg(cells - successes));
    }
};

ORDA_TEST_MAIN(MatrixTest)
#include "matrix_test.moc"
