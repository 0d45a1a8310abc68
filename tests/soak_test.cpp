#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include <QDir>
#include <QFile>

#include <malloc.h>

namespace {

int entries(const char *directory)
{
    return QDir(QLatin1String(directory)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// Memory in use by the process, in KiB.
int residentKilobytes()
{
    ::malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/status"));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').value(1).toInt();
    return 0;
}

} // namespace

/// The same run again and again leaves nothing behind. ORDA_SOAK_RUNS sets how often; 100 unless set.
class SoakTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void runsLeaveNothingBehind()
    {
        const QList<FamilyRow> families = offeredFamilies();
        const int runs = qMax(100, qEnvironmentVariableIntValue("ORDA_SOAK_RUNS"));
        const FleetSite site(100);
        const SiteClient &client = site.client;
        QTRY_VERIFY(client.table()->rowCount() >= 85);
        client.tickAll();
        const auto counts = [&client]() -> QList<int> { // descriptors, threads, objects, windows
            return {entries("/proc/self/fd"), entries("/proc/self/task"), client.form.findChildren<QObject *>().size(),
                    QApplication::topLevelWidgets().size()};
        };
        QList<int> start;
        int memory = 0;
        for (int run = 0; run < runs; ++run) {
            if (run == 50) {
                start = counts();
                memory = residentKilobytes();
            }
            const FamilyRow &family = families.at(run % families.size());
            QVERIFY2(client.configure(family).endsWith(QLatin1String("failure:0")), qPrintable(family.name));
            dismissDialogs();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const int end = residentKilobytes();
        QCOMPARE(counts(), start);
        qInfo("%d runs: %d KiB after 50, %d KiB at the end", runs, memory, end);
#ifndef ORDA_SANITIZED
        QVERIFY2(end < memory + 4096, "memory grows");
#endif
    }
};

ORDA_TEST_MAIN(SoakTest)
#include "soak_test.moc"
