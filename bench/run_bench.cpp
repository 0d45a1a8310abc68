#include "Benchmarks.h"
#include "OsdExchange.h"
#include "support/FormFixture.h"

#include <vms_client_sdk/ClientSdk.h>

#include <QApplication>
#include <QDialog>
#include <QTest>

#include <benchmark/benchmark.h>

namespace {

void dismissSummary()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *dialog = qobject_cast<QDialog *>(window))
            dialog->reject();
    QTest::qWait(20); // what is left to paint and to delete
}

QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

/// What devices hold before a run.
enum class Settings
{
    Same,
    Different, ///< none holds what the one before it does, so that every write is another one
};

/// Answers each request, which the SDK raises at the next turn of the event loop.
class InstantTransport : public vms_sdk::DeviceTransport
{
    Q_OBJECT

public:
    explicit InstantTransport(Settings settings)
    {
        const int different = settings == Settings::Same ? 1 : 100;
        for (int i = 0; i < different; ++i)
            m_read.append(osd_exchange::readAnswer(i));
    }

    void send(const QString &requestId, const QString &, const QString &text) override
    {
        ++requests;
        if (text.contains(QLatin1String("chnosd_get_param")))
            emit answered(requestId, m_read.at(int(requests % m_read.size())));
        else
            emit answered(requestId, m_written);
    }

    qint64 requests = 0;

private:
    QStringList m_read;
    QString m_written = osd_exchange::writeAnswer();
};

/// A whole run of the OSD page, from the press to the summary; the answers come at the next turn of the event loop.
void osdRun(benchmark::State &state, Settings settings)
{
    const FormFixture f(int(state.range(0)), silent);
    auto instant = std::make_unique<InstantTransport>(settings);
    InstantTransport *transport = instant.get();
    vms_sdk::ClientSdk::instance().setTransport(std::move(instant));
    f.tickAll();
    f.form->findChild<QAbstractButton *>(QStringLiteral("osd_param"))->click();
    auto *configure = f.page("osdParamsCfgPage")->findChild<QAbstractButton *>(QStringLiteral("okBt"));
    QTest::qWait(20);
    while (state.KeepRunning()) {
        configure->click();
        state.PauseTiming();
        if (std::exchange(transport->requests, 0) != 2 * state.range(0))
            state.SkipWithError("not every device was read and written");
        dismissSummary();
        state.ResumeTiming();
    }
}

/// The texts of as many devices built, written, parsed and merged, and nothing else.
void osdFloor(benchmark::State &state)
{
    const QString readAnswer = osd_exchange::readAnswer();
    const QString writeAnswer = osd_exchange::writeAnswer();
    while (state.KeepRunning()) {
        for (qint64 device = 0; device < state.range(0); ++device) {
            QString read = osd_exchange::readRequest();
            QString write = osd_exchange::writeRequest(readAnswer);
            bool isAccepted = osd_exchange::isAccepted(writeAnswer);
            benchmark::DoNotOptimize(read);
            benchmark::DoNotOptimize(write);
            benchmark::DoNotOptimize(isAccepted);
        }
    }
}

} // namespace

void registerBenchmarks()
{
    const auto add = [](const char *name, const auto &function) {
        benchmark::RegisterBenchmark(name, function)
            ->Arg(1)
            ->Arg(100)
            ->Arg(1'000)
            ->Arg(10'000)
            ->Unit(benchmark::kMillisecond);
    };
    add("osdRun", [](benchmark::State &state) { osdRun(state, Settings::Same); });
    add("osdRunDifferent", [](benchmark::State &state) { osdRun(state, Settings::Different); });
    add("osdFloor", osdFloor);
}

#include "run_bench.moc"
