#include "video/VideoParamsPanel.h"

#include "ui_VideoParamsPanel.h"

#include <QTimer>

#include <chrono>

namespace orda_batchCfg {

namespace {

constexpr int columns = 2;
// The layout settles in the turn of the event loop after a change.
constexpr std::chrono::milliseconds settlePause{10};

// What a sub-stream cannot carry: the first resolutions of the list. The choice then falls on 704*576.
constexpr int mainStreamOnlyResolutions = 3;
constexpr int subStreamResolution = 6;

} // namespace

VideoParamsPanel::VideoParamsPanel(int streamType, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::VideoParamsPanel>())
    , m_streamType(streamType)
{
    m_ui->setupUi(this);
    m_ui->encodingFormat->setItemsData({QStringLiteral("h264"), QStringLiteral("h265")});
    m_ui->bitRateMode->setItemsData({QStringLiteral("vbr"), QStringLiteral("cbr")});
    m_ui->bitRateStrategy->setItemsData({100, 80, 60, 40, 20});
    if (m_streamType == SubStream) {
        m_ui->title->setText(tr("SD Stream"));
        for (int i = 0; i < mainStreamOnlyResolutions; ++i)
            m_ui->resolution->removeItem(0);
        m_ui->resolution->setCurrentIndex(subStreamResolution);
    }
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
    QJsonObject params;
    if ((m_paramsMask & EncodingFormat) != 0)
        params.insert(QStringLiteral("venctype"), m_ui->encodingFormat->currentData().toString());
    if ((m_paramsMask & Resolution) != 0) {
        const QStringList sides = m_ui->resolution->currentText().split(QLatin1Char('*'));
        params.insert(QStringLiteral("width"), sides.constFirst().toInt());
        params.insert(QStringLiteral("height"), sides.constLast().toInt());
    }
    if ((m_paramsMask & FrameRate) != 0)
        params.insert(QStringLiteral("frameRate"), m_ui->frameRate->currentText().toInt());
    if ((m_paramsMask & BitRate) != 0) {
        params.insert(QStringLiteral("rcMode"), m_ui->bitRateMode->currentData().toString());
        params.insert(QStringLiteral("quality"), m_ui->bitRateStrategy->currentData().toInt());
        m_ui->videoQuality->interpretText(); // what is being typed counts, and is shown as it is sent
        params.insert(QStringLiteral("bitRate"), m_ui->videoQuality->value());
    }
    return params;
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
