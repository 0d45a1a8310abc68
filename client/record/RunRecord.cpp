#include "client/record/RunRecord.h"

#include <orda_base/SortOrder.h>

#include <QDate>
#include <QDir>
#include <QMap>
#include <QPair>
#include <QTime>
#include <QTranslator>

#include <algorithm>
#include <optional>

namespace orda_client {

namespace {

constexpr int timeWidth = 19;
constexpr int gapWidth = 4;
constexpr int ipWidth = 16;
constexpr int wideGapWidth = 16;

// Context and source of the module's text for a device that was configured.
constexpr char successContext[] = "orda_batchCfg::ParamsCfgTask";
constexpr char successText[] = "success";

QString blanks(int count)
{
    return {count, QLatin1Char(' ')};
}

int endOfBlanks(const QString &text, int from)
{
    while (from < text.size() && text.at(from) == QLatin1Char(' '))
        ++from;
    return from;
}

// The address in the column that begins at this place. It is empty in an empty column; nothing: no column begins there.
std::optional<QString> addressAt(const QString &text, int place, bool anyWord)
{
    const QString word = text.mid(place, text.indexOf(QLatin1Char(' '), place) - place);
    if (!word.isEmpty() && !anyWord && !orda_base::ipv4Number(word))
        return {};
    const int end = place + std::max(ipWidth, word.size()) + gapWidth;
    if (endOfBlanks(text, place + word.size()) < end)
        return {};
    return word;
}

std::optional<RunEntry> parseAround(const QString &text, bool anyWord)
{
    const int serialNumber = timeWidth + gapWidth;
    const QString gap = blanks(gapWidth);
    for (int end = text.indexOf(gap, serialNumber); end >= 0; end = text.indexOf(gap, end + 1)) {
        const std::optional<QString> ip = addressAt(text, end + gapWidth, anyWord);
        if (!ip)
            continue;
        int message = end + gapWidth + std::max(ipWidth, ip->size()) + gapWidth;
        if (ip->isEmpty()) {
            // Blanks here belong to the serial number, because no message begins with one.
            const int surplus = endOfBlanks(text, message) - message;
            if (surplus < wideGapWidth) {
                end += surplus;
                message += surplus;
            }
        }
        const int messageEnd = text.indexOf(blanks(wideGapWidth), message);
        if (messageEnd < 0)
            return {};
        RunEntry entry;
        entry.outcome = RunEntry::Failed;
        entry.time = text.left(timeWidth);
        entry.serialNumber = text.mid(serialNumber, end - serialNumber);
        entry.ip = *ip;
        entry.message = text.mid(message, messageEnd - message);
        entry.name = text.mid(messageEnd + wideGapWidth);
        return entry;
    }
    return {};
}

// Whether a time and a gap begin at this place. A regular expression would go through the whole record each time.
bool isTimeAt(const QString &text, int place)
{
    const QLatin1String pattern("0000-00-00 00:00:00    ");
    if (place < 0 || text.size() - place < pattern.size())
        return false;
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar character = text.at(place + i);
        const bool isDigit = character >= QLatin1Char('0') && character <= QLatin1Char('9');
        if (pattern.at(i) == QLatin1Char('0') ? !isDigit : character != pattern.at(i))
            return false;
    }
    return true;
}

// Whether an entry may begin at this place.
bool isRealTimeAt(const QString &text, int place)
{
    return isTimeAt(text, place) && QDate::fromString(text.mid(place, 10), Qt::ISODate).isValid()
        && QTime::fromString(text.mid(place + 11, 8)).isValid();
}

bool hasOtherTime(const QString &text)
{
    const QString gap = blanks(gapWidth);
    for (int end = text.indexOf(gap, timeWidth + 1); end >= 0; end = text.indexOf(gap, end + 1))
        if (isTimeAt(text, end - timeWidth))
            return true;
    return false;
}

// An entry ends with an empty line that a time follows: a name may contain empty lines too.
int endOfEntry(const QString &text, int from)
{
    const QLatin1String emptyLine("\n\n");
    for (int end = text.indexOf(emptyLine, from); end >= 0; end = text.indexOf(emptyLine, end + 1)) {
        const int next = end + emptyLine.size();
        if (isRealTimeAt(text, next))
            return next;
    }
    // The last entry ends with an empty line too; what follows it is the beginning of an entry that was cut off.
    const int last = text.endsWith(emptyLine) ? -1 : text.lastIndexOf(emptyLine);
    return last > from ? last + emptyLine.size() : text.size();
}

RunEntry unreadableEntry(const QString &text)
{
    RunEntry unreadable;
    unreadable.message = text;
    return unreadable;
}

// Whether no other fields give the same text. Another device's failure could be read as this success only if its serial
// number went on behind a gap, or if its real result and name stood in what is taken for the name.
bool isCertain(const RunEntry &entry)
{
    const int gap = entry.serialNumber.indexOf(blanks(gapWidth));
    const bool isNumberWhole = gap < 0 || endOfBlanks(entry.serialNumber, gap) == entry.serialNumber.size();
    return isNumberWhole && !entry.name.startsWith(QLatin1Char(' ')) && !entry.name.contains(blanks(wideGapWidth));
}

RunEntry parseEntry(const QString &text)
{
    RunEntry unreadable = unreadableEntry(text);
    // A second time inside belongs to another entry: the end of the first one was never written.
    if (!isRealTimeAt(text, 0) || hasOtherTime(text))
        return unreadable;
    // IPv4 addresses first: others, such as host names, are hard to tell from parts of a serial number.
    const std::optional<RunEntry> entry = parseAround(text, false);
    return entry ? *entry : parseAround(text, true).value_or(unreadable);
}

QString withoutEmptyLine(const QString &text)
{
    return text.endsWith(QLatin1String("\n\n")) ? text.chopped(2) : text;
}

RunEntry judgedEntry(const QString &text, const QStringList &successTexts)
{
    RunEntry entry = parseEntry(text);
    if (entry.outcome == RunEntry::Unreadable || !successTexts.contains(entry.message))
        return entry;
    if (!isCertain(entry))
        return unreadableEntry(text);
    entry.outcome = RunEntry::Succeeded;
    return entry;
}

void doubt(RunEntry *entry, const QString &text)
{
    if (entry->outcome == RunEntry::Succeeded)
        *entry = unreadableEntry(text);
}

} // namespace

bool RunEntry::operator==(const RunEntry &other) const
{
    return outcome == other.outcome && time == other.time && serialNumber == other.serialNumber && ip == other.ip
        && message == other.message && name == other.name;
}

QVector<RunEntry> parseRunRecord(const QString &text, const QStringList &successTexts, const QString &lastTime)
{
    QVector<RunEntry> entries;
    QString before; // the text of the entry before this one
    QString latest; // the latest time so far
    for (int from = 0; from < text.size();) {
        const int end = endOfEntry(text, from);
        const QString own = withoutEmptyLine(text.mid(from, end - from));
        entries.append(judgedEntry(own, successTexts));
        const QString time = isRealTimeAt(own, 0) ? own.left(timeWidth) : latest;
        if (time < latest || (!lastTime.isEmpty() && time > lastTime)) {
            // Entries are written in the order of time, so this time is part of a field: no entry begins or ends here.
            doubt(&entries.last(), own);
            if (entries.size() > 1)
                doubt(&entries[entries.size() - 2], before);
        } else {
            latest = time;
        }
        before = own;
        from = end;
    }
    return entries;
}

QVector<RunEntry> parseRunRecord(const QByteArray &record, const QVector<int> &ends, const QStringList &successTexts,
                                 const QString &lastTime)
{
    if (ends.isEmpty() || ends.constLast() != record.size())
        return parseRunRecord(QString::fromLocal8Bit(record), successTexts, lastTime);
    QVector<RunEntry> entries;
    int from = 0;
    for (const int end : ends) {
        const QString text = QString::fromLocal8Bit(record.constData() + from, end - from);
        entries.append(judgedEntry(withoutEmptyLine(text), successTexts));
        from = end;
    }
    return entries;
}

QStringList successTexts()
{
    QStringList texts{QLatin1String(successText)};
    const QString catalogues = QStringLiteral(":/translations");
    const QStringList files = QDir(catalogues).entryList({QStringLiteral("batchCfg_*.qm")});
    for (const QString &file : files) {
        QTranslator catalogue;
        if (catalogue.load(file, catalogues))
            texts.append(catalogue.translate(successContext, successText));
    }
    return texts;
}

QVector<FailureGroup> groupFailures(const QVector<RunEntry> &entries)
{
    QMap<QPair<RunEntry::Outcome, QString>, int> counts;
    for (const RunEntry &entry : entries) {
        if (entry.outcome == RunEntry::Failed)
            ++counts[{entry.outcome, entry.message}];
        else if (entry.outcome == RunEntry::Unreadable)
            ++counts[{entry.outcome, QString()}];
    }
    QVector<FailureGroup> groups;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        groups.append({it.key().first, it.key().second, it.value()});
    std::stable_sort(groups.begin(), groups.end(),
                     [](const FailureGroup &group, const FailureGroup &other) { return group.count > other.count; });
    return groups;
}

} // namespace orda_client
