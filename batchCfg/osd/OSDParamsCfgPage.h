#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class OSDParamsCfgPage;
}

class OSDParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit OSDParamsCfgPage(QWidget *parent = nullptr);
    ~OSDParamsCfgPage() override;

private:
    std::unique_ptr<Ui::OSDParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
