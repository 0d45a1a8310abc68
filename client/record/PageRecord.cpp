#include "client/record/PageRecord.h"

#include "client/form/Families.h"

#include <QVariant>
#include <QWidget>

#include <algorithm>

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

bool PageRecord::operator==(const PageRecord &other) const
{
    return inUse == other.inUse && error == other.error && entryEnds == other.entryEnds;
}

QVector<RunEntry> FamilyRecord::read(QString *error) const
{
    error->clear();
    if (!state.exists || page.isMissing())
        return {};
    const RecordFile::Content content = RecordFile(family->recordFile).read();
    *error = content.error;
    return parseRunRecord(content.bytes, page.entryEnds, successTexts(), state.lastTime());
}

bool FamilyRecord::operator!=(const FamilyRecord &other) const
{
    return family != other.family || !(state == other.state) || !(page == other.page);
}

QVector<FamilyRecord> familyRecords(const QWidget *form, const Family *also)
{
    QVector<FamilyRecord> records;
    for (const Family &family : families()) {
        const RecordFile::State state = RecordFile(family.recordFile).state();
        const PageRecord page = PageRecord::of(form, family);
        if (state.exists || !page.error.isEmpty() || &family == also)
            records.append({&family, state, page});
    }
    std::stable_sort(records.begin(), records.end(), [](const FamilyRecord &record, const FamilyRecord &other) {
        if (record.state.refusal.isEmpty() != other.state.refusal.isEmpty())
            return record.state.refusal.isEmpty();
        return record.state.changed > other.state.changed;
    });
    return records;
}

} // namespace orda_client
