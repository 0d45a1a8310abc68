#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class NetworkParamsCfgPage;
}

class NetworkParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit NetworkParamsCfgPage(QWidget *parent = nullptr);
    ~NetworkParamsCfgPage() override;

private:
    std::unique_ptr<Ui::NetworkParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
