#include "support/FamilyTable.h"

#include <families/Families.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <algorithm>

const QList<FamilyRow> &familyTable()
{
    static const QList<FamilyRow> rows = [] {
        QList<FamilyRow> all;
        for (const orda_batchCfg::FamilyEntry &entry : orda_batchCfg::Families::all()) {
            const auto &family = entry.family;
            FamilyRow row{family.name,  entry.key,           entry.pageName,
                          family.title, family.recordFile(), family.timeoutText};
            for (const orda_batchCfg::CfgExchange &exchange : family.exchanges) {
                row.methods << exchange.getMethod << exchange.setMethod;
                row.failures << exchange.getFailure << exchange.setFailure;
            }
            all.append(row);
        }
        return all;
    }();
    return rows;
}

QJsonObject expectedOf(const QString &family)
{
    static const QJsonObject families = [] {
        QFile file(FAMILIES_JSON);
        QJsonParseError error{};
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const QJsonObject all = QJsonDocument::fromJson(file.readAll(), &error).object();
        if (!isOpen || all.isEmpty())
            qFatal("%s: %s at %d", FAMILIES_JSON, qPrintable(error.errorString()), error.offset);
        return all;
    }();
    return families.value(family).toObject();
}

QList<FamilyRow> offeredFamilies()
{
    QList<FamilyRow> offered;
    for (const FamilyRow &family : familyTable())
        if (!family.navigationKey.isEmpty())
            offered.append(family);
    return offered;
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
    const QStringList entries = QString::fromUtf8(file.readAll()).split("\n\n", Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QStringList fields = entry.split("    ", Qt::SkipEmptyParts);
        // The address is missing where a device has none; the message is the first field that reads like one.
        const auto message = std::find_if(fields.begin() + 2, fields.end(), [](const QString &field) {
            return !field.trimmed().isEmpty() && !field.trimmed().front().isDigit();
        });
        messages.insert(fields.value(1).trimmed(), message == fields.end() ? entry : message->trimmed());
    }
    return messages;
}
