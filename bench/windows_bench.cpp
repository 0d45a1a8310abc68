#include "client/devices/DeviceStates.h"
#include "client/devices/DevicesWindow.h"
#include "client/drive/PauseMeter.h"
#include "client/runs/RunJobs.h"
#include "client/runs/RunsWindow.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"

#include <orda_base/BaseForm.h>
#include <orda_base/SearchBox.h>
#include <orda_data/DevsMgrData.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/OpenFiles.h>

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <functional>

// The longest pause of the windows over many devices, as JSON in milliseconds, and ends.
//   windows_bench INVENTORY
// The history (in XDG_STATE_HOME) must have a run over the devices.

namespace {

using namespace orda_client;

constexpr int longestWait = 120000; // milliseconds, for thousands of devices to come online
constexpr int afterwards = 500; // milliseconds, in which what was begun by a step is done

/// What was measured, in milliseconds.
QJsonObject &results()
{
    static QJsonObject measured;
    return measured;
}

/// How long the event loop was blocked at the longest while @p step was done and what it began.
void measure(const QString &what, const std::function<void()> &step)
{
    PauseMeter meter;
    meter.start();
    step();
    QTest::qWait(afterwards);
    results().insert(what, meter.longestPause());
}

QTableView *largestTable(const QWidget *window)
{
    const auto tables = window->findChildren<QTableView *>();
    const auto largest = std::max_element(tables.begin(), tables.end(), [](const QTableView *a, const QTableView *b) {
        return a->model()->rowCount() < b->model()->rowCount();
    });
    return largest == tables.end() ? nullptr : *largest;
}

/// @param rows that the window must have before it counts as open
bool measureWindow(const QString &name, int rows, const std::function<QWidget *()> &make)
{
    QWidget *window = nullptr;
    bool isOpen = false;
    measure(name + QStringLiteral(": opening"), [&] {
        window = make();
        window->show();
        isOpen = QTest::qWaitFor([&] { return largestTable(window)->model()->rowCount() >= rows; }, longestWait);
    });
    if (!isOpen)
        return false;
    QTableView *table = largestTable(window);
    measure(name + QStringLiteral(": sorting"), [table] {
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            table->sortByColumn(column, Qt::AscendingOrder);
            QTest::qWait(1);
            table->sortByColumn(column, Qt::DescendingOrder);
            QTest::qWait(1);
        }
    });
    measure(name + QStringLiteral(": searching"), [table] {
        // The search that belongs to the table: the one beside it.
        orda_base::SearchBox *search = nullptr;
        for (const QWidget *around = table->parentWidget(); around && !search; around = around->parentWidget())
            search = around->findChild<orda_base::SearchBox *>();
        auto *edit = search ? search->findChild<QLineEdit *>() : nullptr;
        if (!edit)
            qFatal("there is no search");
        for (const char *typed : {"1", "12", "123", "12", "1", ""}) {
            edit->setText(QLatin1String(typed));
            QTest::qWait(1);
        }
    });
    window->close();
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_NO_GLIB", "1"); // as the programs do
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    vms_sdk::raiseOpenFileLimit();
    const QStringList arguments = QCoreApplication::arguments();
    ClientSettings settings({});
    ClientSession session(orda_journal::HistoryOptions{});
    DeviceStates states;
    RunJobs jobs(&session);
    const std::unique_ptr<QWidget> form(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
    const QString error = session.openInventory(arguments.value(1));
    const auto &store = orda_data::DevsMgrData::instance();
    const int devices = store.devCount(false);
    const bool isOnline = error.isEmpty() && devices > 0
                       && QTest::qWaitFor([&store, devices] { return store.devCount(true) == devices; }, longestWait);
    if (!isOnline) {
        QTextStream(stderr) << "windows_bench: the devices are not on line " << error << '\n';
        return 2;
    }
    const bool isMeasured =
        measureWindow(QStringLiteral("Devices"), devices,
                      [&] { return new DevicesWindow(&session, &states, form.get(), &settings, nullptr); })
        && measureWindow(QStringLiteral("Runs"), devices,
                         [&] { return new RunsWindow(&session, &jobs, form.get(), &settings, nullptr); });
    QTextStream(stdout) << QJsonDocument(results()).toJson();
    return isMeasured ? 0 : 1;
}
