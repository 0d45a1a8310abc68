#pragma once

#include <run/CfgFamily.h>

#include <QCoreApplication>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

class CompareModel;

/// What a comparison changes in the form, and how it is told. The form is the batch-configuration form, or a window
/// that has it. GUI thread.
class FormChanges
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::FormChanges)

public:
    struct Told
    {
        QString text; ///< what was done, for the user
        QStringList lines = {}; ///< what could not be done, each on its own
    };

    /// Loads values into the family's page (PageLoader), and shows the page.
    static Told load(const QWidget *form, const orda_batchCfg::CfgFamily &family, const QJsonObject &values);
    /// Ticks exactly the devices that differ from the standard in the device list.
    static Told tickDifferent(QWidget *form, const CompareModel &model);
};

} // namespace orda_client
