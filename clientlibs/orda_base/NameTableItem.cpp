#include "orda_base/NameTableItem.h"

#include <QCollator>
#include <QLocale>

namespace orda_base {

namespace {

// Costly to make, so one for all.
const QCollator &collator()
{
    static const QCollator shared = [] {
        // The C locale knows no numbers in texts.
        const QLocale locale;
        QCollator made(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
        made.setNumericMode(true);
        made.setCaseSensitivity(Qt::CaseInsensitive);
        return made;
    }();
    return shared;
}

} // namespace

NameTableItem::NameTableItem(const QString &name)
    : QTableWidgetItem(name)
{
}

bool NameTableItem::operator<(const QTableWidgetItem &other) const
{
    return collator().compare(text(), other.text()) < 0;
}

} // namespace orda_base
