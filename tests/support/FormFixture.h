#pragma once

#include "support/ScriptedTransport.h"

#include <shell/BatchCfgForm.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QTableWidget>

#include <chrono>
#include <memory>

/// The form in a shown window over a store of its own and a scripted transport. Devices are "dev0", "dev1", …, online,
/// with the addresses 10.0.0.1 on, serial numbers "SN0" on and names "Cam 0" on.
class FormFixture
{
public:
    FormFixture(int devices, const ScriptedTransport::Script &script,
                std::chrono::milliseconds waitingTime = std::chrono::seconds(5));
    ~FormFixture();
    Q_DISABLE_COPY_MOVE(FormFixture)

    static vms_sdk::DevInfo device(int number);

    QWidget *page(const char *name) const { return form->findChild<QWidget *>(QLatin1String(name)); }
    QCheckBox *box(const char *name) const { return form->findChild<QCheckBox *>(QLatin1String(name)); }
    QTableWidget *table() const { return form->findChild<QTableWidget *>(QStringLiteral("devsTableWt")); }
    QLineEdit *searchEdit() const { return page("searchBox")->findChild<QLineEdit *>(); }
    /// One column of the rows that can be seen, top to bottom.
    QStringList column(int number) const;
    void tickAll() const { box("selAll")->click(); }
    /// Opens a page by its navigation entry and clicks its Configure button with the mouse; back when the run is over.
    void configure(const QString &navigationKey, const QString &pageName) const;
    void configureAudio() const { configure(QStringLiteral("audio_param"), QStringLiteral("audioParametersPage")); }

    ScriptedTransport *transport; ///< the SDK owns it
    QPointer<orda_batchCfg::BatchCfgForm> form;
};
