#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class OnvifParamsCfgPage;
}

class OnvifParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit OnvifParamsCfgPage(QWidget *parent = nullptr);
    ~OnvifParamsCfgPage() override;

protected:
    ParamsCfgTask *createTask(const QString &devId, const QJsonObject &values) override;

private:
    std::unique_ptr<Ui::OnvifParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
