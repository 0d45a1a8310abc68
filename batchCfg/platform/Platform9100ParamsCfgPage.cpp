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
    : ParamsCfgPage(Platform9100ParamsCfgTask::family(), parent)
    , m_ui(std::make_unique<Ui::Platform9100ParamsCfgPage>())
{
    m_ui->setupUi(this);

    // A server without an address is not configured by hand, and then neither address nor port are sent.
    using Value = std::function<QJsonValue()>;
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
        {ServiceEnable, m_ui->serviceEnable, {m_ui->serviceEnablePanel}, "bEnable", m_ui->serviceSwitch},
        {ServiceAddress,
         m_ui->serviceAddress,
         {m_ui->onlineServicePanel, m_ui->bussinessServicePanel},
         "bManualcfgonline",
         nullptr,
         isGiven(m_ui->onlineUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "onlineserverip", m_ui->onlineUrl, address(m_ui->onlineUrl)},
        {ServiceAddress,
         m_ui->serviceAddress,
         {},
         "onlineserverport",
         m_ui->onlinePort,
         port(m_ui->onlineUrl, m_ui->onlinePort)},
        {ServiceAddress, m_ui->serviceAddress, {}, "bManualcfgbussiness", nullptr, isGiven(m_ui->bussinessUrl)},
        {ServiceAddress, m_ui->serviceAddress, {}, "businessserverip", m_ui->bussinessUrl, address(m_ui->bussinessUrl)},
        {ServiceAddress,
         m_ui->serviceAddress,
         {},
         "businessserverport",
         m_ui->bussinessPort,
         port(m_ui->bussinessUrl, m_ui->bussinessPort)},
    });
}

Platform9100ParamsCfgPage::~Platform9100ParamsCfgPage() = default;

} // namespace orda_batchCfg
