#pragma once

#include <QWidget>

namespace orda_batchCfg {

class ImageParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit ImageParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
