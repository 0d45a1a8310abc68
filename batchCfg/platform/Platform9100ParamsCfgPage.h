#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class Platform9100ParamsCfgPage;
}

class Platform9100ParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit Platform9100ParamsCfgPage(QWidget *parent = nullptr);
    ~Platform9100ParamsCfgPage() override;

private:
    std::unique_ptr<Ui::Platform9100ParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
