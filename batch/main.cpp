#include "batch/BatchExit.h"
#include "batch/BatchOptions.h"
#include "batch/DiscoverCommand.h"
#include "batch/FamiliesCommand.h"
#include "batch/HistoryCommand.h"
#include "batch/OutputThread.h"
#include "batch/Question.h"
#include "batch/ReadingCommand.h"
#include "batch/WritingCommand.h"
#include "journal/HistoryOptions.h"
#include "programs/CommandLine.h"
#include "programs/Complaint.h"
#include "programs/Translations.h"
#include "programs/UnixSignals.h"

#include <vms_client_sdk/OpenFiles.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextCodec>

#include <clocale>
#include <cstdlib>
#include <fcntl.h>
#include <langinfo.h>
#include <memory>
#include <unistd.h>

using namespace orda_batch;
using namespace orda_programs;

namespace {

/// A descriptor that its caller has closed would become that of the next file, such as the history, to which results
/// and messages would go then. What is opened for reading only takes none.
void keepStandardDescriptors()
{
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO)
        descriptor = ::open("/dev/null", O_RDONLY); // takes the lowest free one
    ::close(descriptor);
}

/// Programs that are started by a timer or by another machine often have no locale. Names of cameras and files are
/// UTF-8 there all the same.
void takeTextsAsUtf8()
{
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

std::unique_ptr<DeviceCommand> makeCommand(const BatchOptions &options, const orda_journal::HistoryOptions &history,
                                           OutputThread *output)
{
    if (options.command == Command::Apply || options.command == Command::Undo)
        return std::make_unique<WritingCommand>(options, history, output);
    return std::make_unique<ReadingCommand>(options, history, output);
}

/// Lets the command run, and waits until everything that it says is written.
/// @param make makes it, of a class with start(), stop() and signalFinished()
template <typename Make>
int runToItsEnd(const Make &make)
{
    const UnixSignals signalsOfProcess; // before any thread
    OutputThread output;
    int exitCode = 0;
    bool isEnding = false, isLost = false;
    const auto command = make(&output);
    using Kind = typename decltype(command)::element_type;
    QObject::connect(command.get(), &Kind::signalFinished, &output, [&](int code) {
        exitCode = code;
        isEnding = true;
        output.drain();
    });
    QObject::connect(&output, &OutputThread::signalDrained, QCoreApplication::instance(), &QCoreApplication::quit);
    QObject::connect(&output, &OutputThread::signalBroken, command.get(), [&isLost](const QString &why) {
        isLost = !why.isEmpty(); // else whoever read it does not want any more
        if (isLost)
            complain(QCoreApplication::translate("main", "the results cannot be written: %1").arg(why));
    });
    QObject::connect(&signalsOfProcess, &UnixSignals::endRequested, command.get(), [&] {
        if (isEnding)
            std::_Exit(exitCode == ExitOk ? int(ExitStopped) : exitCode); // what is not written yet, nobody reads
        isEnding = true; // the next one ends it at once
        exitCode = ExitStopped;
        command->stop(QCoreApplication::translate("main", "interrupted"));
    });
    command->start();
    QCoreApplication::exec();
    return isLost && exitCode == ExitOk ? int(ExitInput) : exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    // GLib's dispatcher checks every socket on every wake-up, which takes seconds with thousands of devices.
    qputenv("QT_NO_GLIB", "1");
    keepStandardDescriptors();
    const QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orda_batch"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORDA_VERSION));
    takeTextsAsUtf8();
    // What happens to a device stands in its result; QT_LOGGING_RULES brings the log back.
    QLoggingCategory::setFilterRules(QStringLiteral("orda.*=false"));
    vms_sdk::raiseOpenFileLimit();

    const QStringList arguments = QCoreApplication::arguments();
    const QString language = optionValue(arguments, QStringLiteral("language"));
    const bool isForPrograms = optionValue(arguments, QStringLiteral("format")) == QLatin1String("json");
    Translations translations; // first: mistakes of the command line are told in this language too
    const bool isKnown = language.isEmpty() || Translations::languages().contains(language);
    if (!translations.install(isForPrograms ? QStringLiteral("en") : language) || !isKnown) {
        return fail(QCoreApplication::translate("main", "--language takes one of %1, not \"%2\"")
                        .arg(Translations::languages().join(QStringLiteral(", ")), language),
                    ExitUsage);
    }
    BatchOptions options = parseOptions(arguments);
    using C = Command;
    const bool writes = options.command == C::Apply || options.command == C::Undo;
    const bool isOnDevices =
        writes || options.command == C::Read || options.command == C::Plan || options.command == C::Verify;
    if (options.error.isEmpty() && writes && !options.isConfirmed && !Question::canAsk())
        options.error = QCoreApplication::translate("main", "--yes is needed where nobody can be asked");
    if (!options.error.isEmpty())
        return fail(QCoreApplication::translate("main", "%1 (see orda_batch --help)").arg(options.error), ExitUsage);

    if (options.command == Command::Families)
        return showFamilies(options);
    if (options.command == Command::Discover)
        return runToItsEnd([&](OutputThread *output) { return std::make_unique<DiscoverCommand>(options, output); });
    QString warning;
    const auto history = orda_journal::HistoryOptions::configured(&warning);
    if (!warning.isEmpty())
        complain(warning);
    if (!isOnDevices)
        return runHistoryCommand(options, history);
    return runToItsEnd([&](OutputThread *output) { return makeCommand(options, history, output); });
}
