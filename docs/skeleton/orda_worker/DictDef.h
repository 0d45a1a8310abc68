#pragma once

#include <QString>

namespace orda_worker {

/// Texts that all modules of a client share, in its language.
class DictDef
{
public:
    static DictDef &instance();

    /// The title of alerts.
    QString alertTitle() const;
};

} // namespace orda_worker
