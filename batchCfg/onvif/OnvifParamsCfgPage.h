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

private:
    std::unique_ptr<Ui::OnvifParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
