#include "support/FamilyTable.h"

#include <families/Families.h>

#include <QDir>
#include <QFile>

#include <algorithm>

using orda_batchCfg::CfgExchange;
using orda_batchCfg::Families;
using orda_batchCfg::FamilyEntry;

namespace {

FamilyRow rowOf(const FamilyEntry &entry)
{
    const auto &family = entry.family;
    FamilyRow row{family.name,
                  QString::fromLatin1(entry.key),
                  QString::fromLatin1(entry.pageName),
                  QString::fromLatin1(family.title),
                  family.recordFile(),
                  QString::fromLatin1(family.timeoutText),
                  {},
                  {}};
    for (const CfgExchange &exchange : family.exchanges) {
        row.methods << exchange.getMethod << exchange.setMethod;
        row.failures << QString::fromLatin1(exchange.getFailure) << QString::fromLatin1(exchange.setFailure);
    }
    return row;
}

} // namespace

const QList<FamilyRow> &familyTable()
{
    static const QList<FamilyRow> rows = [] {
        QList<FamilyRow> all;
        for (const FamilyEntry &entry : Families::all())
            all.append(rowOf(entry));
        return all;
    }();
    return rows;
}

QList<FamilyRow> offeredFamilies()
{
    QList<FamilyRow> offered;
    for (const FamilyRow &family : familyTable())
        if (!family.navigationKey.isEmpty())
            offered.append(family);
    return offered;
}

QList<FamilyRow> stormedFamilies()
{
    const bool all = qEnvironmentVariableIsSet("ORDA_STORM_SEEDS");
    const QStringList few{QStringLiteral("audio"), QStringLiteral("platform"), QStringLiteral("image")};
    const QList<FamilyRow> offered = offeredFamilies();
    QList<FamilyRow> families;
    for (const FamilyRow &family : offered)
        if (all || few.contains(family.name))
            families.append(family);
    return families;
}

const FamilyRow &familyRow(const QString &name)
{
    const auto &rows = familyTable();
    return *std::find_if(rows.begin(), rows.end(), [&name](const FamilyRow &row) { return row.name == name; });
}

QString recordPath(const FamilyRow &family)
{
    return QDir::temp().filePath(family.recordFile);
}

QMap<QString, QString> recordedMessages(const FamilyRow &family)
{
    QMap<QString, QString> messages;
    QFile file(recordPath(family));
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    const QStringList entries = QString::fromUtf8(file.readAll()).split(QStringLiteral("\n\n"), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QStringList fields = entry.split(QStringLiteral("    "), Qt::SkipEmptyParts);
        // The address is missing where a device has none; the message is the first field that reads like one.
        const auto message = std::find_if(fields.begin() + 2, fields.end(), [](const QString &field) {
            return !field.trimmed().isEmpty() && !field.trimmed().front().isDigit();
        });
        messages.insert(fields.value(1).trimmed(), message == fields.end() ? entry : message->trimmed());
    }
    return messages;
}
