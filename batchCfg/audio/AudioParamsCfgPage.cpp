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
    : ParamsCfgPage(AudioParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::AudioParamsCfgPage>())
{
    m_ui->setupUi(this);
    setParams({
        {AudioEnable, m_ui->audioEnable, {m_ui->audioEnablePanel}, "bEnable", m_ui->audioSwitch},
        {EncodingFormat, m_ui->encodingFormat, {m_ui->encodingFormatPanel}, "encType", m_ui->encodingFormatParam},
        {AudioInVolume, m_ui->audioInVolume, {m_ui->audioInVolumePanel}, "aiGain", m_ui->audioInVolumeSlider},
        {AlarmOutVolume, m_ui->alarmOutVolume, {m_ui->alarmOutVolumePanel}, "aoGain", m_ui->alarmOutVolumeSlider},
        {SamplingRate, m_ui->samplingRate, {m_ui->samplingRatePanel}, "sampleRate", m_ui->samplingRateParam},
        {SamplingRate, m_ui->samplingRate, {m_ui->bitWidePanel}, "bitWidth", m_ui->BitWideParam},
    });
    pairVolume(m_ui->audioInVolumeSlider, m_ui->audioInVolumeParam);
    pairVolume(m_ui->alarmOutVolumeSlider, m_ui->alarmOutVolumeParam);
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

} // namespace orda_batchCfg
