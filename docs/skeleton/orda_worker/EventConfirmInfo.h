#pragma once

#include <QString>
#include <QStringList>

namespace orda_worker {

/// A question to the operator. The module writes {uuid, title, text, buttons}: it must take that list in this order.
struct EventConfirmInfo
{
    QString uuid; ///< comes back with the answer
    QString title;
    QString text;
    QStringList buttons; ///< texts, in the order of the buttons
};

} // namespace orda_worker
