#include "client/form/Families.h"

#include <families/Families.h>

#include <QAbstractButton>
#include <QStackedWidget>

#include <algorithm>

namespace orda_client {

const QList<Family> &families()
{
    static const QList<Family> offered = [] {
        QList<Family> all;
        for (const orda_batchCfg::FamilyEntry &entry : orda_batchCfg::Families::all())
            if (entry.key)
                all.append({entry.family.name, QLatin1String(entry.key), QLatin1String(entry.pageName),
                            entry.family.recordFile()});
        return all;
    }();
    return offered;
}

const Family *findFamily(const QString &name)
{
    const auto found = std::find_if(families().begin(), families().end(),
                                    [&name](const Family &candidate) { return candidate.name == name; });
    return found == families().end() ? nullptr : &*found;
}

QStringList familyNames()
{
    QStringList names;
    for (const Family &candidate : families())
        names.append(candidate.name);
    return names;
}

const Family *shownFamily(const QWidget *form)
{
    const auto *pages = form->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    const QString page = pages ? pages->currentWidget()->objectName() : QString();
    const auto found = std::find_if(families().begin(), families().end(),
                                    [&page](const Family &candidate) { return candidate.pageName == page; });
    return found == families().end() ? nullptr : &*found;
}

QString familyTitle(const QWidget *form, const Family &family)
{
    const auto *entry = form->findChild<QAbstractButton *>(family.navigationKey);
    return entry ? entry->text() : family.name;
}

} // namespace orda_client
