#pragma once

#include <QWidget>

namespace orda_batchCfg {

class OSDParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit OSDParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
