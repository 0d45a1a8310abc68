#pragma once

#include <QApplication>
#include <QtTest>

/// Base of every test class: a warning of ours (category "orda.*") that the test has not announced fails the test
/// function. A class with an init() or cleanup() of its own calls these.
class OrdaTest : public QObject
{
    Q_OBJECT

public:
    /// Announces a warning for the running test function; one that does not come fails the function too.
    static void expectWarning(const QString &pattern);
    /// Allows a warning for the running test function, any number of times, none included.
    static void allowWarnings(const QString &pattern);

protected slots:
    void init();
    void cleanup();
};

/// The columns of a test function's data.
template <typename... Types>
void columns(std::initializer_list<const char *> names)
{
    const auto *name = names.begin();
    (QTest::addColumn<Types>(*name++), ...);
}

/// A row of a test function's data; a literal is a QString.
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

/// Rows of a test function's data, all texts, from a file in tests/cases: a line each, " | " between its parts, the
/// first of which names the row; a line that begins with "#" is a comment.
void rowsFrom(const char *file);

/// Rows for a random test: each runs with a seed of its own.
inline void seeds(int count)
{
    columns<int>({"seed"});
    for (int seed = 1; seed <= count; ++seed)
        row(qPrintable(QStringLiteral("seed %1").arg(seed)), seed);
}

/// What a run tells in the end.
QString summaryOf(int successes, int failures);

/// Rejects every dialog that is open.
void dismissDialogs();

/// The main function of a test program: Qt's own event dispatcher, as the programs use it, and a window that closes
/// does not end the loop that a test is in.
#define ORDA_TEST_MAIN(TestClass)                                                                                      \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        qputenv("QT_NO_GLIB", "1");                                                                                    \
        QApplication app(argc, argv);                                                                                  \
        QApplication::setQuitOnLastWindowClosed(false);                                                                \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
