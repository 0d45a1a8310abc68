#include "video/VideoParamsPanel.h"

#include "run/KeyEditor.h"
#include "ui_VideoParamsPanel.h"
#include "video/VideoParamsCfgTask.h"

#include <QTimer>

#include <chrono>

namespace orda_batchCfg {

namespace {

constexpr int columns = 2;
// The layout settles in the turn of the event loop after a change.
constexpr std::chrono::milliseconds settlePause{10};

// The resolutions that are chosen at first, indexes among those of the stream: 1920*1080 and 704*576.
constexpr int mainStreamResolution = 2;
constexpr int subStreamResolution = 6;

QJsonValue valueOf(const QWidget *editor, const char *key)
{
    return editedValue(editor, VideoParamsCfgTask::family(), key);
}

} // namespace

VideoParamsPanel::VideoParamsPanel(int streamType, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::VideoParamsPanel>())
    , m_streamType(streamType)
{
    m_ui->setupUi(this);
    fillEditors();
    if (m_streamType == SubStream)
        m_ui->title->setText(tr("SD Stream"));
    // There are two of these panels: each editor is named with its stream. Where an editor has a caption, some systems
    // take the caption's name and others the editor's own.
    const auto captions = findChildren<XCOMMON::XLabel *>();
    for (XCOMMON::XLabel *caption : captions) {
        caption->setAccessibleName(tr("%1, %2", "stream, parameter").arg(m_ui->title->text(), caption->text()));
        caption->buddy()->setAccessibleName(caption->accessibleName());
    }
    m_fieldWidgets = {{EncodingFormat, m_ui->encodingFormatWt}, {Resolution, m_ui->resolutionWt},
                      {FrameRate, m_ui->frameRateWt},           {BitRate, m_ui->bitRateModeWt},
                      {BitRate, m_ui->bitRateStrategyWt},       {BitRate, m_ui->videoQualityWt}};
}

VideoParamsPanel::~VideoParamsPanel() = default;

void VideoParamsPanel::fillEditors()
{
    const CfgFamily &family = VideoParamsCfgTask::family();
    fillEditor(m_ui->encodingFormat, family, "venctype");
    fillEditor(m_ui->frameRate, family, "frameRate");
    fillEditor(m_ui->bitRateMode, family, "rcMode");
    fillEditor(m_ui->bitRateStrategy, family, "quality");
    fillEditor(m_ui->videoQuality, family, "bitRate");
    const bool isSubStream = m_streamType == SubStream;
    const QVector<QSize> resolutions = videoResolutions(isSubStream);
    for (const QSize &resolution : resolutions)
        m_ui->resolution->addItem(QStringLiteral("%1*%2").arg(resolution.width()).arg(resolution.height()));
    m_ui->resolution->setCurrentIndex(isSubStream ? subStreamResolution : mainStreamResolution);
}

void VideoParamsPanel::setParamsMask(int mask)
{
    m_paramsMask = mask;
    setVisible(mask != 0);
    for (const Field &field : qAsConst(m_fieldWidgets))
        field.widget->setVisible((mask & field.group) != 0);
    packFields();
    reportAlignmentLater();
}

void VideoParamsPanel::packFields()
{
    int place = 0;
    for (const Field &field : qAsConst(m_fieldWidgets)) {
        m_ui->gridLayout->removeWidget(field.widget);
        if (field.widget->isVisibleTo(this)) {
            m_ui->gridLayout->addWidget(field.widget, place / columns, place % columns);
            ++place;
        }
    }
}

QJsonObject VideoParamsPanel::getParams() const
{
    if ((m_paramsMask & BitRate) != 0)
        m_ui->videoQuality->interpretText();
    return currentParams();
}

QJsonObject VideoParamsPanel::currentParams() const
{
    QJsonObject params;
    if ((m_paramsMask & EncodingFormat) != 0)
        params.insert(QStringLiteral("venctype"), valueOf(m_ui->encodingFormat, "venctype"));
    if ((m_paramsMask & Resolution) != 0) {
        const QStringList sides = m_ui->resolution->currentText().split(QLatin1Char('*'));
        params.insert(QStringLiteral("width"), sides.constFirst().toInt());
        params.insert(QStringLiteral("height"), sides.constLast().toInt());
    }
    if ((m_paramsMask & FrameRate) != 0)
        params.insert(QStringLiteral("frameRate"), valueOf(m_ui->frameRate, "frameRate"));
    if ((m_paramsMask & BitRate) != 0) {
        params.insert(QStringLiteral("rcMode"), valueOf(m_ui->bitRateMode, "rcMode"));
        params.insert(QStringLiteral("quality"), valueOf(m_ui->bitRateStrategy, "quality"));
        params.insert(QStringLiteral("bitRate"), valueOf(m_ui->videoQuality, "bitRate"));
    }
    return params;
}

QVector<VideoParamsPanel::Editor> VideoParamsPanel::editors() const
{
    return {{"venctype", EncodingFormat, m_ui->encodingFormat},
            {"width", Resolution, m_ui->resolution},
            {"height", Resolution, m_ui->resolution},
            {"frameRate", FrameRate, m_ui->frameRate},
            {"rcMode", BitRate, m_ui->bitRateMode},
            {"quality", BitRate, m_ui->bitRateStrategy},
            {"bitRate", BitRate, m_ui->videoQuality}};
}

void VideoParamsPanel::showEvent(QShowEvent *event)
{
    if (std::exchange(m_firstShow, false))
        reportAlignmentLater();
    QWidget::showEvent(event);
}

void VideoParamsPanel::reportAlignmentLater() const
{
    QTimer::singleShot(settlePause, this, &VideoParamsPanel::reportAlignment);
}

void VideoParamsPanel::reportAlignment()
{
    m_ui->gridLayout->activate();
    QLayoutItem *first = m_ui->gridLayout->itemAtPosition(0, 0);
    QWidget *field = first ? first->widget() : nullptr;
    const auto *combo = field ? field->findChild<QComboBox *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (combo)
        emit signalAlignmentGlobalPosX(combo->mapToGlobal(QPoint(0, 0)).x());
}

} // namespace orda_batchCfg
