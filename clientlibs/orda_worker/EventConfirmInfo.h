#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

namespace orda_worker {

/// A question to the operator. Esc, or closing the dialog, counts as its last button.
struct EventConfirmInfo
{
    QString uuid; ///< comes back with the answer
    QString title;
    QString text;
    QStringList buttons; ///< texts, in the order of the buttons
};

} // namespace orda_worker

Q_DECLARE_METATYPE(orda_worker::EventConfirmInfo)
