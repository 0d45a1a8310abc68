#include "video/VideoParamsCfgPage.h"

#include "run/KeyEditor.h"
#include "ui_VideoParamsCfgPage.h"
#include "video/VideoParamsCfgTask.h"
#include "video/VideoParamsPanel.h"

#include <QHash>
#include <QJsonArray>
#include <QSpinBox>

namespace orda_batchCfg {

VideoParamsCfgPage::VideoParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(VideoParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::VideoParamsCfgPage>())
{
    m_ui->setupUi(this);
    fillEditor(m_ui->smartEncodingCtrl, VideoParamsCfgTask::family(), "smartencode");
    m_hdPanel = addPanel(VideoParamsPanel::MainStream);
    m_sdPanel = addPanel(VideoParamsPanel::SubStream);
    // The panels were made after the buttons, which stand below them.
    setTabOrder(m_sdPanel->findChild<QSpinBox *>(), m_ui->okBt);
    setTabOrder(m_ui->okBt, m_ui->reportBt);
    connect(m_hdPanel, &VideoParamsPanel::signalAlignmentGlobalPosX, this, &VideoParamsCfgPage::alignSmartEncoding);

    for (const QCheckBox *stream : {m_ui->HDStream, m_ui->SDStream})
        connect(stream, &QCheckBox::toggled, this, &VideoParamsCfgPage::slotSelectedStreamsChanged);
    addSelection(m_ui->allStreams, {m_ui->HDStream, m_ui->SDStream}, tr("Please select the streams to be configured"));
    // The panels have the values, so the table has only the boxes and what they mean to the panels.
    setParams({
        {0, m_ui->smartEncoding, {}, nullptr, nullptr},
        {VideoParamsPanel::EncodingFormat, m_ui->encodingFormat, {}, nullptr, nullptr},
        {VideoParamsPanel::Resolution, m_ui->resolution, {}, nullptr, nullptr},
        {VideoParamsPanel::FrameRate, m_ui->frameRate, {}, nullptr, nullptr},
        {VideoParamsPanel::BitRate, m_ui->bitRate, {}, nullptr, nullptr},
    });
}

VideoParamsCfgPage::~VideoParamsCfgPage() = default;

VideoParamsPanel *VideoParamsCfgPage::addPanel(int streamType)
{
    auto *panel = new VideoParamsPanel(streamType, this);
    // In front of the spacer that closes the layout.
    m_ui->paramsPanelsLayout->insertWidget(m_ui->paramsPanelsLayout->count() - 1, panel);
    return panel;
}

void VideoParamsCfgPage::slotSelectedStreamsChanged()
{
    updateSelection(m_ui->allStreams);
}

void VideoParamsCfgPage::refresh()
{
    ParamsCfgPage::refresh();
    m_ui->smartEncodingPanel->setVisible(m_ui->smartEncoding->isChecked() && m_ui->HDStream->isChecked());
    const auto showPanel = [this](VideoParamsPanel *panel, bool isTicked) {
        if (isTicked && flags() != 0)
            panel->setParamsMask(flags());
        else
            panel->hide(); // it keeps its mask: a later run with its stream still collects those groups
    };
    showPanel(m_hdPanel, m_ui->HDStream->isChecked());
    showPanel(m_sdPanel, m_ui->SDStream->isChecked());
}

void VideoParamsCfgPage::alignSmartEncoding(int globalX)
{
    QLayout *layout = m_ui->smartEncodingPanelLayout;
    layout->activate(); // an earlier report may not have been laid out yet
    const int x = m_ui->smartEncodingCtrl->mapToGlobal(QPoint(0, 0)).x();
    layout->setSpacing(qMax(0, layout->spacing() + globalX - x));
}

QJsonObject VideoParamsCfgPage::values() const
{
    QJsonArray streams;
    const auto add = [&streams](QJsonObject stream, int streamId) {
        stream.insert(QStringLiteral("streamid"), streamId);
        streams.append(stream);
    };
    if (m_ui->HDStream->isChecked()) {
        QJsonObject stream = m_hdPanel->currentParams();
        if (m_ui->smartEncoding->isChecked())
            stream.insert(QStringLiteral("smartencode"),
                          editedValue(m_ui->smartEncodingCtrl, VideoParamsCfgTask::family(), "smartencode"));
        add(stream, VideoParamsPanel::MainStream);
    }
    if (m_ui->SDStream->isChecked())
        add(m_sdPanel->currentParams(), VideoParamsPanel::SubStream);
    return {{QStringLiteral("streams"), streams}};
}

QList<ParamsCfgPage::ShownMember> VideoParamsCfgPage::shownMembers() const
{
    const QHash<int, QCheckBox *> boxOfGroup{{VideoParamsPanel::EncodingFormat, m_ui->encodingFormat},
                                             {VideoParamsPanel::Resolution, m_ui->resolution},
                                             {VideoParamsPanel::FrameRate, m_ui->frameRate},
                                             {VideoParamsPanel::BitRate, m_ui->bitRate}};
    QList<ShownMember> members{
        {QStringLiteral("stream0.smartencode"),
         tr("%1, %2", "stream, parameter").arg(m_ui->HDStream->text(), m_ui->smartEncoding->text()),
         {m_ui->smartEncoding, m_ui->HDStream},
         m_ui->smartEncodingCtrl}};
    const auto add = [&](const VideoParamsPanel *panel, int streamId, QCheckBox *stream) {
        const QVector<VideoParamsPanel::Editor> editors = panel->editors();
        for (const VideoParamsPanel::Editor &editor : editors)
            members.append({QStringLiteral("stream%1.%2").arg(streamId).arg(QLatin1String(editor.key)),
                            editor.widget->accessibleName(),
                            {boxOfGroup.value(editor.group), stream},
                            editor.widget});
    };
    add(m_hdPanel, VideoParamsPanel::MainStream, m_ui->HDStream);
    add(m_sdPanel, VideoParamsPanel::SubStream, m_ui->SDStream);
    return members;
}

} // namespace orda_batchCfg
