#include "support/OrdaTest.h"

#include <QDialog>

#include <algorithm>
#include <cstring>
#include <mutex>

namespace {

QtMessageHandler previousHandler = nullptr;
QBasicMutex mutex; // warnings come from the network and fleet threads too

struct Warnings
{
    QStringList expected, allowed, unexpected;
};

Q_GLOBAL_STATIC(Warnings, warnings)

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool ours = context.category && std::strncmp(context.category, "orda.", 5) == 0;
    if (ours && (type == QtWarningMsg || type == QtCriticalMsg)) {
        const std::lock_guard lock(mutex);
        const auto matches = [&text](const QString &pattern) {
            return QRegularExpression(pattern).match(text).hasMatch();
        };
        QStringList &expected = warnings->expected;
        const auto found = std::find_if(expected.begin(), expected.end(), matches);
        if (found != expected.end()) {
            expected.erase(found);
            return;
        }
        const QStringList &allowed = warnings->allowed;
        if (std::any_of(allowed.begin(), allowed.end(), matches))
            return;
        warnings->unexpected.append(text);
    }
    previousHandler(type, context, text);
}

} // namespace

QString summaryOf(int successes, int failures)
{
    return QStringLiteral("A total of %1 devices have been configured, success:%2, failure:%3")
        .arg(successes + failures)
        .arg(successes)
        .arg(failures);
}

void rowsFrom(const char *file)
{
    QFile cases(QFINDTESTDATA("../cases") + QLatin1Char('/') + QLatin1String(file));
    if (!cases.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(cases.fileName()), qPrintable(cases.errorString()));
    const QRegularExpression divider(QStringLiteral(R"((?<=\s)\|(?=\s))"));
    while (!cases.atEnd()) {
        const QString line = QString::fromUtf8(cases.readLine());
        if (line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList parts = line.split(divider);
        QTestData &row = QTest::newRow(qPrintable(parts.constFirst().trimmed()));
        const QStringList rest = parts.mid(1);
        for (const QString &part : rest)
            row << part.trimmed();
    }
}

void dismissDialogs()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *dialog = qobject_cast<QDialog *>(window))
            dialog->reject();
}

void OrdaTest::expectWarning(const QString &pattern)
{
    const std::lock_guard lock(mutex);
    warnings->expected.append(pattern);
}

void OrdaTest::allowWarnings(const QString &pattern)
{
    const std::lock_guard lock(mutex);
    warnings->allowed.append(pattern);
}

void OrdaTest::init()
{
    const std::lock_guard lock(mutex);
    *warnings() = {};
    previousHandler = qInstallMessageHandler(handleMessage);
}

void OrdaTest::cleanup()
{
    qInstallMessageHandler(previousHandler);
    const std::lock_guard lock(mutex);
    QVERIFY2(warnings->unexpected.isEmpty(), qPrintable(warnings->unexpected.join(QLatin1Char('\n'))));
    QVERIFY2(warnings->expected.isEmpty(),
             qPrintable(QStringLiteral("missing: ") + warnings->expected.join(QLatin1Char('\n'))));
}
