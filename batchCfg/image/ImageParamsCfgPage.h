#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

namespace Ui {
class ImageParamsCfgPage;
}

class ImageParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit ImageParamsCfgPage(QWidget *parent = nullptr);
    ~ImageParamsCfgPage() override;

private:
    std::unique_ptr<Ui::ImageParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
