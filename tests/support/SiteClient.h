#pragma once

#include "fleet/EmbeddedFleet.h"
#include "support/FamilyTable.h"

#include <shell/BatchCfgForm.h>
#include <vms_client_sdk/DevInfo.h>

#include <QCheckBox>
#include <QTableWidget>

#include <chrono>

/// The client's side of a site: store, SDK and form, over real sockets.
class SiteClient
{
public:
    explicit SiteClient(const QList<vms_sdk::DevInfo> &devices,
                        std::chrono::milliseconds waitingTime = std::chrono::seconds(2));
    ~SiteClient();
    Q_DISABLE_COPY_MOVE(SiteClient)

    QTableWidget *table() const { return form.findChild<QTableWidget *>(QStringLiteral("devsTableWt")); }
    void tickAll() const { form.findChild<QCheckBox *>(QStringLiteral("selAll"))->click(); }
    QString idInRow(int row) const { return table()->item(row, 0)->data(Qt::UserRole + 1).toString(); }

    /// Runs a page over the rows that are ticked and returns the summary's text; empty unless there was exactly one.
    QString configure(const FamilyRow &family) const;

    orda_batchCfg::BatchCfgForm form;
};

/// A fleet and the client over it.
class FleetSite
{
public:
    explicit FleetSite(int devices, std::chrono::milliseconds waitingTime = std::chrono::seconds(2),
                       const device_fleet::FaultPlan &faults = {}, quint32 seed = device_fleet::FleetOptions().seed);

    device_fleet::EmbeddedFleet fleet;
    SiteClient client;
};
