#pragma once

#include <QWidget>

namespace orda_batchCfg {

class NetworkParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit NetworkParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
