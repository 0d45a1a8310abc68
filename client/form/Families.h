#pragma once

#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// A parameter family as a program meets it from outside: where its page is, and where its record lies.
struct Family
{
    QString name; ///< as the command line takes it
    QString navigationKey; ///< object name of its entry in the form's navigation
    QString pageName; ///< object name of its page in the form
    QString recordFile; ///< in the temporary directory
};

/// All families of the form, in the order of its pages.
const QList<Family> &families();
/// Null when there is none of that name.
const Family *findFamily(const QString &name);
QStringList familyNames();
/// The family whose page the form shows. A run covers the form, so in a run, and when its summary comes, it is the
/// run's.
const Family *shownFamily(const QWidget *form);
/// As the form's navigation calls it, in the operator's language.
QString familyTitle(const QWidget *form, const Family &family);

} // namespace orda_client
