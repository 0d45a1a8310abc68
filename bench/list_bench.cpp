#include "Benchmarks.h"
#include "support/FormFixture.h"

#include "client/drive/PauseMeter.h"

#include <orda_base/IpTableItem.h>
#include <orda_base/NameTableItem.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <vms_client_sdk/ClientSdk.h>

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace {

using orda_data::DevsMgrData;

/// The search text after each of six key strokes: three typed and three taken back, again and again.
QString typed(int stroke)
{
    constexpr int lengths[]{1, 2, 3, 2, 1, 0};
    return QStringLiteral("123").left(lengths[stroke % 6]);
}

QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

/// Lays out and paints what has changed.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

// Devices whose order says nothing about their names and addresses.
QList<vms_sdk::DevInfo> shuffledDevices(int count)
{
    QList<vms_sdk::DevInfo> devices;
    for (int i = 0; i < count; ++i)
        devices.append(FormFixture::device(i));
    std::shuffle(devices.begin(), devices.end(), std::mt19937(1));
    return devices;
}

/// The form with an empty list over a store whose devices are online.
class EmptyList
{
public:
    explicit EmptyList(int count)
        : f(0, silent)
        , devices(shuffledDevices(count))
    {
        DevsMgrData::instance().updateDevs(devices);
        const QSignalBlocker quiet(&orda_data::DataSignals::instance());
        for (const vms_sdk::DevInfo &dev : qAsConst(devices))
            DevsMgrData::instance().setDevStatus(dev.id, vms_sdk::DevOnline);
    }

    static void fill()
    {
        emit orda_saas::LoginSignals::instance().signalEnterpriseStatus(1);
        settle();
    }

    FormFixture f;
    QList<vms_sdk::DevInfo> devices;
};

/// What the list would be without the product: a QTableWidget of the same rows, that does not draw while it is changed.
class BareList : public QTableWidget
{
public:
    BareList()
        : QTableWidget(0, 4)
    {
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        horizontalHeader()->hide();
        verticalHeader()->hide();
        verticalHeader()->setDefaultSectionSize(32); // as the product's
        setShowGrid(false);
        setWordWrap(false);
        resize(526, 744);
        show();
        settle();
    }

    void fill(const QList<vms_sdk::DevInfo> &devices)
    {
        setUpdatesEnabled(false);
        setRowCount(devices.size());
        for (int row = 0; row < devices.size(); ++row) {
            const vms_sdk::DevInfo &dev = devices.at(row);
            auto *number = new QTableWidgetItem(QString::number(row + 1));
            number->setCheckState(Qt::Unchecked);
            number->setData(Qt::UserRole + 1, dev.id);
            auto *name = new orda_base::NameTableItem(dev.name);
            name->setToolTip(dev.name);
            const QList<QTableWidgetItem *> texts{name, new QTableWidgetItem(dev.serialNumber),
                                                  new orda_base::IpTableItem(dev.ip, dev.ipNumber, 0)};
            setItem(row, 0, number);
            for (int i = 0; i < texts.size(); ++i) {
                texts.at(i)->setTextAlignment(Qt::AlignCenter);
                setItem(row, i + 1, texts.at(i));
            }
        }
        setUpdatesEnabled(true);
        settle();
    }

    void search(const QString &keyword)
    {
        setUpdatesEnabled(false);
        for (int row = 0; row < rowCount(); ++row) {
            const auto hasKeyword = [&](int column) {
                return item(row, column)->text().contains(keyword, Qt::CaseInsensitive);
            };
            setRowHidden(row, !hasKeyword(1) && !hasKeyword(2) && !hasKeyword(3));
        }
        renumber();
        setUpdatesEnabled(true);
        settle();
    }

    void sort(int column, Qt::SortOrder order)
    {
        setUpdatesEnabled(false);
        sortItems(column, order);
        renumber();
        setUpdatesEnabled(true);
        settle();
    }

private:
    void renumber()
    {
        const QSignalBlocker quiet(model()); // which would look each item up; the view draws all of it anyway
        int number = 0;
        for (int row = 0; row < rowCount(); ++row)
            if (!isRowHidden(row))
                item(row, 0)->setText(QString::number(++number));
    }
};

void listFill(benchmark::State &state)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            const EmptyList list(int(state.range(0)));
            settle();
            state.ResumeTiming();
            EmptyList::fill();
            state.PauseTiming();
            if (list.f.table()->rowCount() != state.range(0))
                state.SkipWithError("the list is not full");
        }
        state.ResumeTiming();
    }
}

void listFillFloor(benchmark::State &state)
{
    const QList<vms_sdk::DevInfo> devices = shuffledDevices(int(state.range(0)));
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            BareList list;
            state.ResumeTiming();
            list.fill(devices);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

/// A key stroke, three typed and three taken back in turn.
void listSearch(benchmark::State &state)
{
    const EmptyList list(int(state.range(0)));
    EmptyList::fill();
    int stroke = 0;
    while (state.KeepRunning()) {
        list.f.searchEdit()->setText(typed(stroke++));
        settle();
    }
}

void listSearchFloor(benchmark::State &state)
{
    BareList list;
    list.fill(shuffledDevices(int(state.range(0))));
    int stroke = 0;
    while (state.KeepRunning())
        list.search(typed(stroke++));
}

/// A click on a header, by name and by address in turn.
void listSort(benchmark::State &state)
{
    const EmptyList list(int(state.range(0)));
    EmptyList::fill();
    const QList<QWidget *> headers{list.f.page("devName"), list.f.page("devIp")};
    int click = 0;
    while (state.KeepRunning()) {
        QTest::mouseClick(headers.at(click++ % 2), Qt::LeftButton);
        settle();
    }
}

void listSortFloor(benchmark::State &state)
{
    BareList list;
    list.fill(shuffledDevices(int(state.range(0))));
    int click = 0;
    while (state.KeepRunning())
        list.sort(click++ % 2 == 0 ? 1 : 3, Qt::AscendingOrder);
}

void wait(const QTableWidget *table, int rows)
{
    while (table->rowCount() != rows)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
}

/// All devices come online one by one, as fast as the SDK passes it on, then go offline in another order. The
/// counters: both ways' time on the user-interface thread, and the longest pause of the window.
void listComesAndGoes(benchmark::State &state, const QString &keyword)
{
    const int count = int(state.range(0));
    const FormFixture f(0, silent);
    QList<vms_sdk::DevInfo> devices = shuffledDevices(count);
    DevsMgrData::instance().updateDevs(devices);
    const auto change = [&](vms_sdk::DevStatus status) {
        for (const vms_sdk::DevInfo &dev : qAsConst(devices))
            emit f.transport->devStatusChanged(dev.id, status);
    };
    double comeMs = 0;
    double goMs = 0;
    orda_client::PauseMeter meter;
    f.searchEdit()->setText(keyword);
    meter.start();
    while (state.KeepRunning()) {
        QElapsedTimer timer;
        timer.start();
        change(vms_sdk::DevOnline);
        wait(f.table(), count);
        comeMs = qMax(comeMs, double(timer.nsecsElapsed()) / 1e6);
        std::shuffle(devices.begin(), devices.end(), std::mt19937(2));
        timer.start();
        change(vms_sdk::DevOffline);
        wait(f.table(), 0);
        goMs = qMax(goMs, double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["comeMs"] = comeMs;
    state.counters["goMs"] = goMs;
    state.counters["pauseMs"] = meter.longestPause();
}

} // namespace

void registerBenchmarks()
{
    const auto add = [](const char *name, const auto &function) {
        benchmark::RegisterBenchmark(name, function)->Arg(100)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
    };
    add("listFill", listFill);
    add("listFillFloor", listFillFloor);
    add("listSearch", listSearch);
    add("listSearchFloor", listSearchFloor);
    add("listSort", listSort);
    add("listSortFloor", listSortFloor);
    add("listComesAndGoes/all", [](benchmark::State &state) { listComesAndGoes(state, QString()); });
    add("listComesAndGoes/searched", [](benchmark::State &state) { listComesAndGoes(state, QStringLiteral("cam 1")); });
}
