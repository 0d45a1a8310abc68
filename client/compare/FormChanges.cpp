#include "client/compare/FormChanges.h"

#include "client/compare/CompareModel.h"
#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"
#include "client/form/PageLoader.h"

#include <QLocale>

namespace orda_client {

FormChanges::Told FormChanges::load(const QWidget *form, const orda_batchCfg::CfgFamily &family,
                                    const QJsonObject &values)
{
    const PageLoader::Loaded loaded = PageLoader(form, family).load(values);
    if (!loaded.refusal.isEmpty())
        return {loaded.refusal};
    const ParameterTexts texts(form, family);
    QStringList lines;
    for (const QString &member : loaded.notSet)
        lines.append(
            tr("The page cannot send this value, and leaves it out: %1", "parameter").arg(texts.title(member)));
    for (const QString &member : loaded.besides)
        lines.append(tr("The page would send this besides: %1", "parameter").arg(texts.title(member)));
    FormPage::of(form, family).open(form);
    return {loaded.isWhole() ? tr("The values were loaded into the page. Nothing was sent to devices.")
                             : tr("The page does not have all of the values as they should be. Look at it before "
                                  "you press Configure:"),
            lines};
}

FormChanges::Told FormChanges::tickDifferent(QWidget *form, const CompareModel &model)
{
    QStringList devIds;
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.isDifferent(row))
            devIds.append(model.device(row).devId);
    const FormTicks::Ticked ticked = FormTicks::tickExactly(form, devIds);
    QString text =
        tr("Ticked %1 of %Ln device(s) that differ in the device list, and no others.", nullptr, devIds.size())
            .arg(QLocale().toString(ticked.count));
    if (ticked.isSearchCleared)
        text += QLatin1Char(' ') + tr("The list's search was cleared: it hid some of them.");
    if (!ticked.notListed.isEmpty())
        text += QLatin1Char(' ') + tr("These are not in the list now:");
    QStringList lines;
    for (const QString &devId : ticked.notListed)
        lines.append(model.device(model.rowOf(devId)).shownName());
    return {text, lines};
}

} // namespace orda_client
