#pragma once

#include "client/preview/PreviewModel.h"

#include <orda_base/TableWidget.h>

namespace orda_client {

/// The groups of a plan with the number of devices in each, of which one is chosen.
class PlanGroupList : public orda_base::TableWidget
{
    Q_OBJECT

public:
    explicit PlanGroupList(QWidget *parent = nullptr);

    void setCounts(const PreviewModel &model);
    PreviewModel::Group group() const;
    void chooseAll();

signals:
    void signalGroupChosen();
};

} // namespace orda_client
