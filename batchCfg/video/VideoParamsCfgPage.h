#pragma once

#include <QWidget>

namespace orda_batchCfg {

class VideoParamsCfgPage : public QWidget
{
    Q_OBJECT

public:
    explicit VideoParamsCfgPage(QWidget *parent = nullptr);
};

} // namespace orda_batchCfg
