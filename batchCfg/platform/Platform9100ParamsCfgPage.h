#pragma once

#include <QWidget>

namespace orda_batchCfg {

class Platform9100ParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit Platform9100ParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
