#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class MotionParamsCfgPage;
}

class MotionParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit MotionParamsCfgPage(QWidget *parent = nullptr);
    ~MotionParamsCfgPage() override;

private:
    std::unique_ptr<Ui::MotionParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
