#pragma once

#include <QWidget>

namespace orda_batchCfg {

class PlatformParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit PlatformParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
