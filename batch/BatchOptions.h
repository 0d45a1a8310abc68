#pragma once

#include "engine/Connecting.h"
#include "engine/WriteJob.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <chrono>

namespace orda_batch {

enum class Command
{
    Families,
    Read,
    Plan,
    Apply,
    Verify,
    Undo,
    HistoryList,
    HistoryRun,
    HistoryPrune,
    HistoryExport,
    HistoryImport,
    Discover
};

enum class Format
{
    Table,
    Csv,
    Json ///< a JSON object a line, and all texts in English
};

/// What the command line asks for. Which options a command has stands in the help that parseOptions() prints.
struct BatchOptions
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::BatchOptions)

public:
    Command command = Command::Families;
    QString family; ///< a name in Families; of Families and Verify it may be empty
    QString run; ///< an id, its unique beginning, or "last"; of Verify it may be empty
    QStringList files; ///< to import

    QStringList settings; ///< the KEY=VALUE of each --set
    QString valuesFile; ///< empty: none
    bool isUnchecked = false; ///< keys and values that the family's table does not have are passed on

    int demoDevices = 0; ///< 0: none
    int demoCameras = 0; ///< ONVIF cameras beside the demo devices
    QString faultsFile; ///< of the demo devices
    QString inventoryFile;
    QString devices; ///< DeviceSelection; empty: the devices that the values or the run are of, else all
    int shard = 1; ///< of shards
    int shards = 1;

    Format format = Format::Table;
    std::chrono::seconds requestTimeout{15};
    std::chrono::seconds connectTimeout = orda_engine::Connecting::usualLimit;
    bool hasHistory = true;

    QString interface; ///< of Discover; empty: all
    std::chrono::seconds searchTime{5}; ///< of Discover: cameras answer within a second or two

    orda_engine::WriteOptions write;
    bool needsAll = false; ///< writes nothing unless all devices are reached
    bool isForced = false; ///< an undo that writes over what was changed since
    bool isConfirmed = false; ///< asks nobody

    QString error; ///< not empty: the command line is wrong; the text names what, and what would be right
};

/// @param arguments the application's, program name first. --help and --version print and end the program here.
BatchOptions parseOptions(const QStringList &arguments);

} // namespace orda_batch
