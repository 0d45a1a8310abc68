#include "batch/FamiliesCommand.h"

#include "batch/KeyTable.h"
#include "batch/ResultTexts.h"
#include "batch/StandardOutput.h"
#include "batch/TextTable.h"
#include "programs/Csv.h"

#include <families/Families.h>

#include <QJsonArray>

namespace orda_batch {

using orda_batchCfg::CfgChoice;
using orda_batchCfg::CfgFamily;
using orda_batchCfg::CfgKey;
using orda_batchCfg::Families;
using orda_batchCfg::FamilyEntry;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::FamiliesCommand)
};

/// @param names of the columns in CSV: those of JSON, in every language, because programs look for them
QString tableOf(Format format, const QStringList &head, const QStringList &names, const QVector<QStringList> &rows)
{
    if (format == Format::Table)
        return alignedTable(head, rows);
    QString text = orda_programs::csvLine(names);
    for (const QStringList &row : rows)
        text += orda_programs::csvLine(row);
    return text;
}

QString listOfFamilies(Format format)
{
    QByteArray json;
    QVector<QStringList> rows;
    for (const FamilyEntry &entry : Families::all()) {
        const CfgFamily &family = entry.family;
        // What the form does not offer has no title in it.
        const QString english = QString::fromUtf8(entry.title ? entry.title : family.title);
        const QString title = entry.title ? Families::tr(entry.title) : family.translated(family.title);
        json += ResultTexts::jsonLine({{QStringLiteral("family"), family.name},
                                       {QStringLiteral("title"), english},
                                       {QStringLiteral("keys"), family.keys.size()}});
        rows.append({family.name, title, QString::number(family.keys.size())});
    }
    if (format == Format::Json)
        return QString::fromUtf8(json);
    return tableOf(format, {Texts::tr("Family"), Texts::tr("Title"), Texts::tr("Keys")},
                   {QStringLiteral("family"), QStringLiteral("title"), QStringLiteral("keys")}, rows);
}

/// "h264 (H264)": the values with the texts that the form has for them.
QString rangeWithTexts(const KeyTable &table, const QString &name, const CfgKey &key)
{
    if (key.type != CfgKey::Choice)
        return table.rangeOf(name);
    QStringList choices;
    for (const CfgChoice &choice : key.choices) {
        const QString value = choice.value.toVariant().toString();
        const QString text = choice.text ? table.family().translated(choice.text) : QString();
        choices.append(text.isEmpty() || text == value ? value : QStringLiteral("%1 (%2)").arg(value, text));
    }
    return choices.join(QStringLiteral(", "));
}

/// What the key must be given with, as it is named.
QStringList neededWith(const QString &name, const CfgKey &key)
{
    QStringList needs;
    for (const QString &other : key.needs)
        needs.append(name.chopped(key.name.size()) + other);
    return needs;
}

QJsonObject toJson(const KeyTable &table, const QString &name, const CfgKey &key)
{
    QJsonObject object{{QStringLiteral("family"), table.family().name},
                       {QStringLiteral("key"), name},
                       {QStringLiteral("type"), table.typeOf(name)}};
    if (key.type == CfgKey::Number) {
        object.insert(QStringLiteral("minimum"), key.minimum);
        object.insert(QStringLiteral("maximum"), key.maximum);
    }
    if (key.type == CfgKey::Text)
        object.insert(QStringLiteral("maxLength"), key.maximum);
    QJsonArray choices;
    const QJsonArray values = table.choicesOf(name);
    for (int i = 0; i < values.size(); ++i) {
        QJsonObject choice{{QStringLiteral("value"), values.at(i)}};
        if (key.type == CfgKey::Choice && key.choices.at(i).text)
            choice.insert(QStringLiteral("text"), QString::fromUtf8(key.choices.at(i).text));
        choices.append(choice);
    }
    if (!choices.isEmpty())
        object.insert(QStringLiteral("choices"), choices);
    if (!key.needs.isEmpty())
        object.insert(QStringLiteral("needs"), QJsonArray::fromStringList(neededWith(name, key)));
    return object;
}

QString listOfKeys(const CfgFamily &family, Format format)
{
    const KeyTable table(family, false);
    const QStringList names = table.names();
    QByteArray json;
    QVector<QStringList> rows;
    for (int i = 0; i < names.size(); ++i) {
        const QString &name = names.at(i);
        const CfgKey &key = family.keys.at(i);
        json += ResultTexts::jsonLine(toJson(table, name, key));
        rows.append({name, table.typeOf(name), rangeWithTexts(table, name, key),
                     neededWith(name, key).join(QStringLiteral(", "))});
    }
    if (format == Format::Json)
        return QString::fromUtf8(json);
    return tableOf(format, {Texts::tr("Key"), Texts::tr("Type"), Texts::tr("Values"), Texts::tr("Only with")},
                   {QStringLiteral("key"), QStringLiteral("type"), QStringLiteral("values"), QStringLiteral("needs")},
                   rows);
}

} // namespace

int showFamilies(const BatchOptions &options)
{
    const CfgFamily *family = Families::find(options.family);
    return print(family ? listOfKeys(*family, options.format) : listOfFamilies(options.format), options.format);
}

} // namespace orda_batch
