#include "client/record/PageRecord.h"

#include "client/form/Families.h"

#include <QVariant>
#include <QWidget>

namespace orda_client {

PageRecord PageRecord::of(const QWidget *form, const Family &family)
{
    const auto *page = form->findChild<QWidget *>(family.pageName);
    return {page->property("recordInUse").toString(), page->property("recordError").toString(),
            page->property("recordEntryEnds").value<QVector<int>>()};
}

QString PageRecord::complaint() const
{
    if (error.isEmpty())
        return {};
    return isMissing()
             ? tr("The last run left no record: %1.").arg(error)
             : tr("The record has only %n result(s) of the last run: %1.", nullptr, entryEnds.size()).arg(error);
}

} // namespace orda_client
