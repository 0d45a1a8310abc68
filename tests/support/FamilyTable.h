#pragma once

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// What operators and devices see of a family of parameters, from the module's own table: a test of all families leaves
/// none out.
struct FamilyRow
{
    QString name;
    QString navigationKey; ///< empty: the form does not offer the page
    QString pageName; ///< object name, in the form's stack where it stands there
    QString title, recordFile, timeoutText;
    QStringList methods = {}; ///< of a run with everything ticked
    QStringList failures = {}; ///< the text for each of them, the code left as %1
};

const QList<FamilyRow> &familyTable();
/// Those that have a page in the form.
QList<FamilyRow> offeredFamilies();
const FamilyRow &familyRow(const QString &name);
/// What families.json expects of a family; empty when it has nothing about it.
QJsonObject expectedOf(const QString &family);

/// Message by serial number, from a record file as it lies on the disk now.
QMap<QString, QString> recordedMessages(const FamilyRow &family);
QString recordPath(const FamilyRow &family);

Q_DECLARE_METATYPE(FamilyRow)
