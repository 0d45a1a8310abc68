#include "batch/HistoryCommand.h"

#include "batch/BatchExit.h"
#include "batch/HistoryTexts.h"
#include "batch/RecordedRuns.h"
#include "batch/StandardOutput.h"
#include "journal/HistoryArchive.h"
#include "journal/HistoryReader.h"
#include "programs/Complaint.h"

#include <families/Families.h>
#include <vms_client_sdk/ForeignText.h>

#include <QFile>
#include <QJsonDocument>

#include <algorithm>

namespace orda_batch {

using namespace orda_programs;
using orda_journal::HistoryArchive;
using orda_journal::HistoryOptions;
using orda_journal::HistoryReader;
using orda_journal::RunDetails;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::HistoryCommand)
};

int printLine(const QString &line)
{
    return print(vms_sdk::escaped(line) + QLatin1Char('\n'));
}

int list(const BatchOptions &options, const HistoryOptions &history)
{
    HistoryReader reader(history);
    const QVector<orda_journal::RunRow> runs = reader.runs();
    if (!reader.error().isEmpty())
        return fail(reader.error(), ExitHistory);
    if (runs.isEmpty() && options.format == Format::Table)
        return printLine(Texts::tr("There are no runs in the history."));
    return print(QString::fromUtf8(HistoryTexts::list(runs, options.format)), options.format);
}

/// @param exitCode when there is no such run, about which has been complained then
std::optional<RunDetails> findRun(const QString &run, const HistoryOptions &history, int *exitCode)
{
    HistoryReader reader(history);
    QString error;
    std::optional<RunDetails> details = RecordedRuns::find(&reader, run, &error);
    if (!details)
        *exitCode = fail(error, reader.error().isEmpty() ? int(ExitInput) : int(ExitHistory));
    return details;
}

int show(const BatchOptions &options, const HistoryOptions &history)
{
    int exitCode = ExitOk;
    const std::optional<RunDetails> details = findRun(options.run, history, &exitCode);
    if (!details)
        return exitCode;
    if (!orda_batchCfg::Families::find(details->run.family))
        complain(Texts::tr("The run is of \"%1\", of which this program knows nothing: what it changed is not shown.")
                     .arg(details->run.family));
    return print(QString::fromUtf8(HistoryTexts::run(*details, options.format)), options.format);
}

int prune(const HistoryOptions &history)
{
    int removed = 0;
    const QString error = HistoryArchive(history).prune(&removed);
    const bool isSaid = error.isEmpty() || removed > 0; // some may be gone before it fails
    const int exitCode = isSaid ? printLine(Texts::tr("Runs removed: %1").arg(removed)) : int(ExitOk);
    return error.isEmpty() ? exitCode : fail(error, ExitHistory);
}

int writeOut(const BatchOptions &options, const HistoryOptions &history)
{
    int exitCode = ExitOk;
    const std::optional<RunDetails> details = findRun(options.run, history, &exitCode);
    if (!details)
        return exitCode;
    if (details->run.isUnderWay)
        return fail(Texts::tr("The run %1 is still under way.").arg(details->run.id), ExitInput);
    if (details->run.ended == 0)
        return fail(Texts::tr("The run %1 ended with its program. What came of its devices is noted when the next run "
                              "begins, or with \"history prune\".")
                        .arg(details->run.id),
                    ExitInput);
    return print(QString::fromUtf8(QJsonDocument(HistoryArchive::toJson(*details)).toJson()));
}

RunDetails runIn(const QString &path, QString *error)
{
    QFile file(path);
    const bool isOpen =
        path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (!isOpen || file.error() != QFile::NoError) {
        *error = Texts::tr("%1: cannot be read: %2").arg(path, file.errorString());
        return {};
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &fault);
    if (fault.error != QJsonParseError::NoError) {
        const QByteArray before = bytes.left(fault.offset);
        *error = Texts::tr("%1:%2:%3: is not JSON: %4")
                     .arg(path, QString::number(before.count('\n') + 1),
                          QString::number(before.size() - before.lastIndexOf('\n')), fault.errorString());
        return {};
    }
    RunDetails run = HistoryArchive::fromJson(document.object(), error);
    if (!error->isEmpty())
        *error = QStringLiteral("%1: %2").arg(path, *error);
    return run;
}

int takeIn(const QString &path, const HistoryOptions &history)
{
    QString error;
    const RunDetails run = runIn(path, &error);
    if (!error.isEmpty())
        return fail(error, ExitInput);
    bool isKnown = false;
    error = HistoryArchive(history).add(run, &isKnown);
    if (!error.isEmpty())
        return fail(QStringLiteral("%1: %2").arg(path, error), ExitHistory);
    const QString text =
        isKnown ? Texts::tr("%1: the run %2 is there already") : Texts::tr("%1: the run %2 is there now");
    return printLine(text.arg(path, run.run.id));
}

int takeInAll(const BatchOptions &options, const HistoryOptions &history)
{
    int exitCode = ExitOk;
    for (const QString &path : options.files)
        exitCode = std::max(exitCode, takeIn(path, history)); // ExitHistory is the highest
    return exitCode;
}

} // namespace

int runHistoryCommand(const BatchOptions &options, const HistoryOptions &history)
{
    switch (options.command) {
    case Command::HistoryRun:
        return show(options, history);
    case Command::HistoryPrune:
        return prune(history);
    case Command::HistoryExport:
        return writeOut(options, history);
    case Command::HistoryImport:
        return takeInAll(options, history);
    default:
        return list(options, history);
    }
}

} // namespace orda_batch
