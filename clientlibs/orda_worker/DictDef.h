#pragma once

#include <orda_worker/Export.h>

#include <QCoreApplication>
#include <QString>

namespace orda_worker {

/// Texts that all modules use. GUI thread only.
class ORDA_WORKER_EXPORT DictDef
{
    Q_DECLARE_TR_FUNCTIONS(DictDef)

public:
    static DictDef &instance();

    /// The title of alerts.
    QString alertTitle() const;

private:
    DictDef() = default;
};

} // namespace orda_worker
