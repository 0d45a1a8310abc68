#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class PlatformParamsCfgPage;
}

class PlatformParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit PlatformParamsCfgPage(QWidget *parent = nullptr);
    ~PlatformParamsCfgPage() override;

private:
    std::unique_ptr<Ui::PlatformParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
