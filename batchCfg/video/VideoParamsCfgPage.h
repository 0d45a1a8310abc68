#pragma once

#include "run/ParamsCfgPage.h"

namespace orda_batchCfg {

class VideoParamsPanel;

namespace Ui {
class VideoParamsCfgPage;
}

/// Besides the parameters it has the streams to choose: each ticked one is edited in a panel of its own.
class VideoParamsCfgPage : public ParamsCfgPage
{
    Q_OBJECT

public:
    explicit VideoParamsCfgPage(QWidget *parent = nullptr);
    ~VideoParamsCfgPage() override;

public slots:
    /// The streams' counterpart of slotSelectedParamsChanged().
    void slotSelectedStreamsChanged();

protected:
    void refresh() override;
    QJsonObject values() const override;
    QList<ShownMember> shownMembers() const override;

private:
    VideoParamsPanel *addPanel(int streamType);
    void alignSmartEncoding(int globalX);

    std::unique_ptr<Ui::VideoParamsCfgPage> m_ui;
    VideoParamsPanel *m_hdPanel;
    VideoParamsPanel *m_sdPanel;
};

} // namespace orda_batchCfg
