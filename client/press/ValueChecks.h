#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace orda_client {

struct FormPage;

/// Looks for values that a device would take but that an operator can hardly mean. It never says that others are right.
class ValueChecks
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ValueChecks)

public:
    /// @param page what is ticked on it, and the values that would be sent; the page itself is not looked at
    /// @return what looks wrong, a text for the user each, such as "Service Address: empty"
    static QStringList of(const FormPage &page);
    /// What cannot be set on those of the devices that speak ONVIF, in the same way; none or one.
    static QStringList onvifGap(const FormPage &page, const QStringList &devIds);
};

} // namespace orda_client
