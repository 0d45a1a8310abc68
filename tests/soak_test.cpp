#include "support/OrdaTest.h"
#include "support/SiteClient.h"

#include "fleet/EmbeddedFleet.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
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
        device_fleet::FleetOptions options;
        options.devices = 100;
        device_fleet::EmbeddedFleet fleet(options);
        QCOMPARE(fleet.start(), QString());
        const SiteClient client(fleet.inventory());
        QTRY_VERIFY(client.table()->rowCount() >= 85);
        client.form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click();
        struct Usage
        {
            int memory, descriptors, threads, objects, windows;
        } start{};
        const auto usage = [&client]() -> Usage {
            return {residentKilobytes(), entries("/proc/self/fd"), entries("/proc/self/task"),
                    client.form.findChildren<QObject *>().size(), QApplication::topLevelWidgets().size()};
        };
        for (int run = 0; run < runs; ++run) {
            if (run == 50)
                start = usage();
            const FamilyRow &family = families.at(run % families.size());
            QVERIFY2(client.configure(family).endsWith(QLatin1String("failure:0")), qPrintable(family.name));
            dismissDialogs();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const Usage end = usage();
        QCOMPARE(end.descriptors, start.descriptors);
        QCOMPARE(end.threads, start.threads);
        QCOMPARE(end.objects, start.objects);
        QCOMPARE(end.windows, start.windows);
        qInfo("%d runs: %d KiB after 50, %d KiB at the end", runs, start.memory, end.memory);
#ifndef ORDA_SANITIZED
        QVERIFY2(end.memory < start.memory + 4096, "memory grows");
#endif
    }
};

ORDA_TEST_MAIN(SoakTest)
#include "soak_test.moc"
