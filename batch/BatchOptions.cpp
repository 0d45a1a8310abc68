#include "batch/BatchOptions.h"

#include "programs/CommandLine.h"

#include <families/Families.h>

#include <QMap>

#include <functional>

namespace orda_batch {

namespace {

// There are more addresses in 127.0.0.0/8, but not more open files for one process.
constexpr int maxDemoDevices = 100000;
constexpr int maxSeconds = 24 * 60 * 60;
constexpr int maxSearch = 60; // seconds; what has not answered by then does not
constexpr int maxShards = 100000;
constexpr int maxRetries = 100;

QStringList familyNames()
{
    QStringList names;
    for (const orda_batchCfg::FamilyEntry &entry : orda_batchCfg::Families::all())
        names.append(entry.family.name);
    return names;
}

QString description()
{
    return BatchOptions::tr(
        "Reads, plans, sets, verifies and takes back parameters of many cameras and recorders.\n\n"
        "Commands:\n"
        "  families [FAMILY]           the families of parameters; keys, types, ranges and choices of one\n"
        "  read FAMILY                 what the devices hold\n"
        "  plan FAMILY VALUES          what \"apply\" would change; changes nothing\n"
        "  apply FAMILY VALUES         sets the values, after a question on the terminal or with --yes\n"
        "  verify RUN | FAMILY VALUES  whether the devices hold what the run wrote, or these values\n"
        "  undo RUN                    takes back what a run has written and nobody has changed since\n"
        "  history [RUN]               the recorded runs; what one of them did\n"
        "  history prune               removes old runs, as the history's settings say\n"
        "  history export RUN          writes a run to standard output; \"import FILE…\" takes it in elsewhere\n"
        "  discover                    ONVIF cameras that answer a search of the local network\n\n"
        "VALUES: --set KEY=VALUE …, or --values FILE. RUN: an id, its beginning, or \"last\".\n"
        "SELECTION, with commas: all, offered, an id, a serial number, name=GLOB, ip=10.1.0.0/16, kind=camera, "
        "kind=recorder, group=NAME, @FILE, failed:RUN, and not: before any of them.\n\n"
        "Exit codes: 0 done on all selected devices, 1 failed on some, 2 wrong usage, 3 wrong input, 4 no device, "
        "5 some not reached, 6 stopped, 7 verification found differences, 8 the history cannot be written or read; "
        "plan: 10 something would change.");
}

/// The options, each with the commands that have it.
class KnownOptions
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::BatchOptions)

public:
    KnownOptions();

    QCommandLineOption set, values, unchecked, inventory, demo, onvif, faults, devices, shard, format, language,
        timeout, connectTimeout, interface, noJournal, serial, maxFailPercentage, retries, verify, requireAll, force,
        yes;

    void addTo(QCommandLineParser *parser) const;
    /// Which option was given that the command does not have; empty when none was.
    QString misplaced(const QCommandLineParser &parser, Command command) const;
    /// Which option was given twice, of which only the last would count; empty when none was.
    QString doubled(const QCommandLineParser &parser) const;

private:
    struct Placed
    {
        const QCommandLineOption *option;
        QVector<Command> commands; // empty: all
    };
    QVector<Placed> m_placed;
};

QCommandLineOption option(const char *name, const QString &text, const char *value = "")
{
    return {QLatin1String(name), text, QLatin1String(value)};
}

KnownOptions::KnownOptions()
    : set(option("set", tr("Sets a parameter; once for each."), "KEY=VALUE"))
    , values(option("values", tr("Values from a file: JSON for all devices, CSV or JSON lines for each."), "FILE"))
    , unchecked(option("unchecked", tr("Lets keys and values pass that the family does not name; reads all members.")))
    , inventory(option("inventory", tr("The devices of this inventory file."), "FILE"))
    , demo(option("demo", tr("N simulated devices, to try something on."), "N"))
    , onvif(option("onvif", tr("M simulated ONVIF cameras beside them (with --demo)."), "M"))
    , faults(option("faults", tr("Faults of the simulated devices (with --demo)."), "FILE"))
    , devices(option("devices", tr("Which of the devices; all when not given."), "SELECTION"))
    , shard(option("shard", tr("Only the K-th of N shares of them."), "K/N"))
    , format(option("format", tr(R"("table" (default), "csv" or "json" (an object a line).)"), "FORMAT"))
    , language(option("language", tr("Language of messages, such as \"en\"; the system's when not given."), "CODE"))
    , timeout(option("timeout",
                     tr("How long a device may take for an answer, in seconds (default 15); "
                        "of discover: how long to search (default 5)."),
                     "S"))
    , connectTimeout(option("connect-timeout", tr("How long to wait for connections, in seconds (default 60)."), "S"))
    , interface(option("interface", tr("Searches by this network interface; all when not given."), "NAME"))
    , noJournal(option("no-journal", tr("Keeps no history of the run: it cannot be taken back.")))
    , serial(option("serial", tr("In waves of so many devices, such as 1,10,25%; the last size goes on."), "SIZES"))
    , maxFailPercentage(
          option("max-fail-percentage", tr("Stops when more than P per cent of a wave's devices fail."), "P"))
    , retries(option("retries", tr("Tries failed devices again, up to N times."), "N"))
    , verify(option("verify", tr("Reads each wave again and compares.")))
    , requireAll(option("require-all", tr("Writes nothing unless all selected devices are reached.")))
    , force(option("force", tr("Takes back what somebody has changed since, too.")))
    , yes(option("yes", tr("Asks nobody.")))
{
    using C = Command;
    const QVector<Command> withDevices{C::Read, C::Plan, C::Apply, C::Verify, C::Undo};
    const QVector<Command> withTimeout = withDevices + QVector<Command>{C::Discover};
    const QVector<Command> withValues{C::Plan, C::Apply, C::Verify};
    const QVector<Command> writing{C::Apply, C::Undo};
    m_placed = {{&set, withValues},
                {&values, withValues},
                {&unchecked, {C::Read, C::Plan, C::Apply, C::Verify}},
                {&inventory, withDevices},
                {&demo, withDevices},
                {&onvif, withDevices},
                {&faults, withDevices},
                {&devices, withDevices},
                {&shard, withDevices},
                {&format, {}},
                {&language, {}},
                {&timeout, withTimeout},
                {&connectTimeout, withDevices},
                {&noJournal, withDevices},
                {&serial, writing},
                {&maxFailPercentage, writing},
                {&retries, writing},
                {&verify, writing},
                {&requireAll, writing},
                {&interface, {C::Discover}},
                {&force, {C::Undo}},
                {&yes, writing}};
}

void KnownOptions::addTo(QCommandLineParser *parser) const
{
    for (const Placed &placed : m_placed)
        parser->addOption(*placed.option);
}

QString KnownOptions::misplaced(const QCommandLineParser &parser, Command command) const
{
    for (const Placed &placed : m_placed)
        if (parser.isSet(*placed.option) && !placed.commands.isEmpty() && !placed.commands.contains(command))
            return placed.option->names().constFirst();
    return {};
}

QString KnownOptions::doubled(const QCommandLineParser &parser) const
{
    for (const Placed &placed : m_placed)
        if (placed.option != &set && parser.values(*placed.option).size() > 1)
            return placed.option->names().constFirst();
    return {};
}

/// Reads one command line; the first mistake stays.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::BatchOptions)

public:
    explicit Reader(const QStringList &arguments);

    BatchOptions options;

private:
    void readCommand();
    void readHistoryCommand(QStringList words);
    void readFamily(const QString &name);
    void readDevices();
    void readWriting();
    void checkTogether();
    void fail(const QString &error);
    /// @param take gets the option's value where it is given and is a whole number in the range
    void readNumber(const QCommandLineOption &option, int minimum, int maximum, const std::function<void(int)> &take);
    bool isSet(const QCommandLineOption &option) const { return m_parser.isSet(option); }

    KnownOptions m_known;
    QCommandLineParser m_parser;
};

Reader::Reader(const QStringList &arguments)
{
    m_parser.setApplicationDescription(description());
    m_parser.addPositionalArgument(QStringLiteral("COMMAND"), tr("One of the commands above."),
                                   QStringLiteral("COMMAND …"));
    m_known.addTo(&m_parser);
    options.error = orda_programs::parseCommandLine(m_parser, arguments);
    for (const QString &argument : arguments)
        if (argument.contains(QChar::ReplacementCharacter))
            fail(tr("\"%1\" is not a text in UTF-8").arg(argument));
    readCommand();
    const QString misplaced = m_known.misplaced(m_parser, options.command);
    if (!misplaced.isEmpty())
        fail(tr("--%1 has no meaning for this command").arg(misplaced));
    const QString doubled = m_known.doubled(m_parser);
    if (!doubled.isEmpty())
        fail(tr("--%1 is given twice").arg(doubled));
    readDevices();
    readWriting();
    checkTogether();
}

void Reader::fail(const QString &error)
{
    if (options.error.isEmpty())
        options.error = error;
}

void Reader::readCommand()
{
    static const QMap<QString, Command> commands{
        {QStringLiteral("families"), Command::Families},   {QStringLiteral("read"), Command::Read},
        {QStringLiteral("plan"), Command::Plan},           {QStringLiteral("apply"), Command::Apply},
        {QStringLiteral("verify"), Command::Verify},       {QStringLiteral("undo"), Command::Undo},
        {QStringLiteral("history"), Command::HistoryList}, {QStringLiteral("discover"), Command::Discover}};
    QStringList words = m_parser.positionalArguments();
    const QString word = words.value(0);
    if (!commands.contains(word)) {
        fail(words.isEmpty() ? tr("a command is missing") : tr("there is no command \"%1\"").arg(word));
        return;
    }
    words.removeFirst();
    options.command = commands.value(word);
    if (options.command == Command::HistoryList) {
        readHistoryCommand(words);
        return;
    }
    if (options.command == Command::Discover) {
        if (!words.isEmpty())
            fail(tr("unexpected argument \"%1\"").arg(words.constFirst()));
        return;
    }
    const QString what = words.value(0);
    const bool isOfRun = options.command == Command::Undo
                      || (options.command == Command::Verify && !orda_batchCfg::Families::find(what)
                          && !isSet(m_known.set) && !isSet(m_known.values));
    if (what.isEmpty() && options.command != Command::Families)
        fail(isOfRun ? tr("%1 needs a run: an id, its beginning, or \"last\"").arg(word)
                     : tr("%1 needs a family: %2").arg(word, familyNames().join(QStringLiteral(", "))));
    else if (isOfRun)
        options.run = what;
    else if (!what.isEmpty())
        readFamily(what);
    if (words.size() > 1)
        fail(tr("unexpected argument \"%1\"").arg(words.at(1)));
}

void Reader::readHistoryCommand(QStringList words)
{
    if (words.isEmpty())
        return;
    const QString word = words.takeFirst();
    if (word == QLatin1String("prune")) {
        options.command = Command::HistoryPrune;
    } else if (word == QLatin1String("export")) {
        options.command = Command::HistoryExport;
        if (words.isEmpty())
            fail(tr("history export needs a run: an id, its beginning, or \"last\""));
        else
            options.run = words.takeFirst();
    } else if (word == QLatin1String("import")) {
        options.command = Command::HistoryImport;
        options.files = words;
        if (words.isEmpty())
            fail(tr("history import needs a file, or several"));
        words.clear();
    } else {
        options.command = Command::HistoryRun;
        options.run = word;
    }
    if (!words.isEmpty())
        fail(tr("unexpected argument \"%1\"").arg(words.constFirst()));
}

void Reader::readFamily(const QString &name)
{
    options.family = name;
    if (!orda_batchCfg::Families::find(name))
        fail(tr("there is no family \"%1\"; there are %2").arg(name, familyNames().join(QStringLiteral(", "))));
}

void Reader::readNumber(const QCommandLineOption &option, int minimum, int maximum,
                        const std::function<void(int)> &take)
{
    if (!isSet(option))
        return;
    bool isNumber = false;
    const int number = m_parser.value(option).toInt(&isNumber);
    if (isNumber && number >= minimum && number <= maximum)
        take(number);
    else
        fail(tr("--%1 takes a whole number from %2 to %3, not \"%4\"")
                 .arg(option.names().constFirst(), QString::number(minimum), QString::number(maximum),
                      m_parser.value(option)));
}

void Reader::readDevices()
{
    const auto value = [this](const QCommandLineOption &option) { return m_parser.value(option); };
    options.settings = m_parser.values(m_known.set);
    options.valuesFile = value(m_known.values);
    options.isUnchecked = isSet(m_known.unchecked);
    options.inventoryFile = value(m_known.inventory);
    options.faultsFile = value(m_known.faults);
    options.devices = value(m_known.devices);
    options.hasHistory = !isSet(m_known.noJournal);
    readNumber(m_known.demo, 1, maxDemoDevices, [this](int number) { options.demoDevices = number; });
    readNumber(m_known.onvif, 1, maxDemoDevices, [this](int number) { options.demoCameras = number; });
    if (options.command == Command::Discover)
        readNumber(m_known.timeout, 1, maxSearch,
                   [this](int number) { options.searchTime = std::chrono::seconds(number); });
    else
        readNumber(m_known.timeout, 1, maxSeconds,
                   [this](int number) { options.requestTimeout = std::chrono::seconds(number); });
    options.interface = value(m_known.interface);
    if (isSet(m_known.interface) && options.interface.isEmpty())
        fail(tr("--interface takes the name of a network interface"));
    readNumber(m_known.connectTimeout, 1, maxSeconds,
               [this](int number) { options.connectTimeout = std::chrono::seconds(number); });

    static const QMap<QString, Format> formats{{QStringLiteral("table"), Format::Table},
                                               {QStringLiteral("csv"), Format::Csv},
                                               {QStringLiteral("json"), Format::Json}};
    const QString format = isSet(m_known.format) ? value(m_known.format) : QStringLiteral("table");
    options.format = formats.value(format);
    if (!formats.contains(format))
        fail(tr("--format takes table, csv or json, not \"%1\"").arg(format));

    if (!isSet(m_known.shard))
        return;
    const QStringList parts = value(m_known.shard).split(QLatin1Char('/'));
    options.shard = parts.value(0).toInt();
    options.shards = parts.value(1).toInt();
    if (parts.size() != 2 || options.shards < 1 || options.shards > maxShards || options.shard < 1
        || options.shard > options.shards)
        fail(tr("--shard takes K/N, with K from 1 to N, not \"%1\"").arg(value(m_known.shard)));
}

void Reader::readWriting()
{
    if (isSet(m_known.serial)) {
        QString error;
        options.write.waves = orda_engine::Waves::parse(m_parser.value(m_known.serial), &error);
        if (!error.isEmpty())
            fail(tr("--serial: %1").arg(error));
    }
    readNumber(m_known.maxFailPercentage, 0, 100, [this](int number) { options.write.maxFailPercentage = number; });
    readNumber(m_known.retries, 0, maxRetries, [this](int number) { options.write.retries = number; });
    options.write.verify = isSet(m_known.verify);
    options.needsAll = isSet(m_known.requireAll);
    options.isForced = isSet(m_known.force);
    options.isConfirmed = isSet(m_known.yes);
}

void Reader::checkTogether()
{
    const bool hasSettings = isSet(m_known.set), hasFile = isSet(m_known.values);
    const bool needsValues = options.command == Command::Plan || options.command == Command::Apply
                          || (options.command == Command::Verify && options.run.isEmpty());
    if (needsValues && !hasSettings && !hasFile)
        fail(tr("values are missing: --set KEY=VALUE or --values FILE"));
    if (hasSettings && hasFile)
        fail(tr("--set and --values exclude each other"));
    const bool hasDevices = isSet(m_known.inventory) || isSet(m_known.demo);
    const bool needsDevices = needsValues || options.command == Command::Read || options.command == Command::Verify
                           || options.command == Command::Undo;
    if (needsDevices && !hasDevices)
        fail(tr("devices are missing: --inventory FILE or --demo N"));
    if (isSet(m_known.inventory) && isSet(m_known.demo))
        fail(tr("--demo and --inventory exclude each other"));
    if (isSet(m_known.onvif) && !isSet(m_known.demo))
        fail(tr("--onvif needs --demo: it brings simulated cameras along"));
    if (isSet(m_known.faults) && !isSet(m_known.demo))
        fail(tr("--faults needs --demo: only simulated devices have faults to order"));
    for (const QCommandLineOption *file : {&m_known.inventory, &m_known.values, &m_known.faults})
        if (isSet(*file) && m_parser.value(*file).isEmpty())
            fail(tr("--%1 takes a file").arg(file->names().constFirst()));
    if (isSet(m_known.devices) && options.devices.isEmpty())
        fail(tr("--devices takes a selection, such as all"));
}

} // namespace

BatchOptions parseOptions(const QStringList &arguments)
{
    return Reader(arguments).options;
}

} // namespace orda_batch
