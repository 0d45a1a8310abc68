#pragma once

#include "client/common/Notice.h"

#include <QPointer>
#include <QStringList>

namespace orda_client {

/// Ticks devices in the form's list, and tells how many it has ticked, and which not and why. Hidden until it has
/// something to tell.
class TickNote : public Notice
{
    Q_OBJECT

public:
    /// @param form the batch-configuration form, or a window that has it; may go before this widget
    explicit TickNote(QWidget *form, QWidget *parent = nullptr);

    /// Ticks exactly these in the form's list. While a run goes on, nothing is ticked.
    /// @param replaced further ids of devices that were meant and that are others now: these are named
    void tick(const QStringList &devIds, const QStringList &replaced = {});
    void tell(const QString &text) { say(text); }

    /// Of a device that the form's list does not have: its name and why, a line for the user.
    static QString whyNotListed(const QString &devId);

private:
    QPointer<QWidget> m_form;
};

} // namespace orda_client
