#include "Benchmarks.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
}
