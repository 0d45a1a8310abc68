#pragma once

#include "run/ParamsCfgPage.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
class QSlider;
QT_END_NAMESPACE

namespace orda_batchCfg {

namespace Ui {
class AudioParamsCfgPage;
}

class AudioParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit AudioParamsCfgPage(QWidget *parent = nullptr);
    ~AudioParamsCfgPage() override;

private:
    void pairVolume(QSlider *slider, QLineEdit *edit);

    std::unique_ptr<Ui::AudioParamsCfgPage> m_ui;
};

} // namespace orda_batchCfg
