#include "audio/AudioParamsCfgPage.h"

#include "audio/AudioParamsCfgTask.h"
#include "ui_AudioParamsCfgPage.h"

#include <QIntValidator>
#include <QLocale>

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    AudioEnable = 1,
    EncodingFormat = 2,
    AudioInVolume = 4,
    AlarmOutVolume = 8,
    SamplingRate = 16
};

} // namespace

AudioParamsCfgPage::AudioParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(tr("Audio Parameters Configuration Result"),
                    QStringLiteral("vms_audio_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::AudioParamsCfgPage>())
{
    m_ui->setupUi(this);
    m_ui->encodingFormatParam->setItemsData({QStringLiteral("g711u"), QStringLiteral("g711a")});
    m_ui->samplingRateParam->setItemsData({8000});
    m_ui->BitWideParam->setItemsData({16});
    pairVolume(m_ui->audioInVolumeSlider, m_ui->audioInVolumeParam);
    pairVolume(m_ui->alarmOutVolumeSlider, m_ui->alarmOutVolumeParam);

    setParams({
        {AudioEnable, m_ui->audioEnable, {m_ui->audioEnablePanel}, "bEnable", switchState(m_ui->audioSwitch)},
        {EncodingFormat,
         m_ui->encodingFormat,
         {m_ui->encodingFormatPanel},
         "encType",
         itemData(m_ui->encodingFormatParam)},
        {AudioInVolume,
         m_ui->audioInVolume,
         {m_ui->audioInVolumePanel},
         "aiGain",
         [this] { return m_ui->audioInVolumeSlider->value(); }},
        {AlarmOutVolume,
         m_ui->alarmOutVolume,
         {m_ui->alarmOutVolumePanel},
         "aoGain",
         [this] { return m_ui->alarmOutVolumeSlider->value(); }},
        {SamplingRate, m_ui->samplingRate, {m_ui->samplingRatePanel}, "sampleRate", itemData(m_ui->samplingRateParam)},
        {SamplingRate, m_ui->samplingRate, {m_ui->bitWidePanel}, "bitWidth", itemData(m_ui->BitWideParam)},
    });
}

AudioParamsCfgPage::~AudioParamsCfgPage() = default;

void AudioParamsCfgPage::pairVolume(QSlider *slider, QLineEdit *edit)
{
    auto *validator = new QIntValidator(slider->minimum(), slider->maximum(), edit);
    QLocale digitsOnly = QLocale::c(); // a comma between thousands would make a 0 of the number
    digitsOnly.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(digitsOnly);
    edit->setValidator(validator);
    const auto showValue = [slider, edit] { edit->setText(QString::number(slider->value())); };
    showValue();
    connect(slider, &QSlider::valueChanged, edit, showValue);
    connect(edit, &QLineEdit::textChanged, slider, [slider, showValue](const QString &text) {
        slider->setValue(text.toInt());
        showValue(); // an empty line, "007" and "150" become the number that is sent
    });
}

ParamsCfgTask *AudioParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    int taskFlags = 0;
    if ((flags() & (AudioEnable | EncodingFormat | AudioInVolume | SamplingRate)) != 0)
        taskFlags |= AudioParamsCfgTask::AudioIn;
    if ((flags() & AlarmOutVolume) != 0)
        taskFlags |= AudioParamsCfgTask::AudioOut;
    return new AudioParamsCfgTask(devId, values, taskFlags, this);
}

} // namespace orda_batchCfg
