#include "platform/Platform9100ParamsCfgPage.h"

#include "platform/Platform9100ParamsCfgTask.h"
#include "ui_Platform9100ParamsCfgPage.h"

namespace orda_batchCfg {

namespace {

enum ParamBit
{
    ServiceEnable = 1,
    ServiceAddress = 2
};

} // namespace

Platform9100ParamsCfgPage::Platform9100ParamsCfgPage(QWidget *parent)
    : ParamsCfgPage(tr("Platform 9100 Parameters Configuration Result"),
                    QStringLiteral("vms_platform_9100_params_batch_cfg_record.txt"), parent)
    , m_ui(std::make_unique<Ui::Platform9100ParamsCfgPage>())
{
    m_ui->setupUi(this);

    // A server without an address is not configured by hand, and then neither address nor port are sent.
    const auto isGiven = [](const QLineEdit *url) -> Value {
        return [url] { return !url->text().trimmed().isEmpty(); };
    };
    const auto address = [](const QLineEdit *url) -> Value {
        return [url]() -> QJsonValue {
            const QString text = url->text().trimmed();
            return text.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(text);
        };
    };
    const auto port = [](const QLineEdit *url, const QLineEdit *edit) -> Value {
        return [url, edit]() -> QJsonValue {
            return url->text().trimmed().isEmpty() ? QJsonValue(QJsonValue::Undefined)
                                                   : QJsonValue(edit->text().toInt());
        };
    };
    setParams({
        {ServiceEnable, m_ui->serviceEnable, {m_ui->serviceEnablePanel}, "bEnable", switchState(m_ui->serviceSwitch)},
        {ServiceAddress,
         m_ui->serviceAddress,
         {m_ui->onlineServicePanel, m_ui->bussinessServicePanel},
         "bManualcfgonline",
         isGiven(m_ui->onlineUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "onlineserverip", address(m_ui->onlineUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "onlineserverport", port(m_ui->onlineUrl, m_ui->onlinePort)},
        {ServiceAddress, m_ui->serviceAddress, {}, "bManualcfgbussiness", isGiven(m_ui->bussinessUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "businessserverip", address(m_ui->bussinessUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "businessserverport", port(m_ui->bussinessUrl, m_ui->bussinessPort)},
    });
}

Platform9100ParamsCfgPage::~Platform9100ParamsCfgPage() = default;

ParamsCfgTask *Platform9100ParamsCfgPage::createTask(const QString &devId, const QJsonObject &values)
{
    return new Platform9100ParamsCfgTask(devId, values, this);
}

} // namespace orda_batchCfg
