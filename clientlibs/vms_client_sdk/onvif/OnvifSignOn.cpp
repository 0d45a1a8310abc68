#include <vms_client_sdk/onvif/OnvifSignOn.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Logging.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <algorithm>
#include <utility>

namespace vms_sdk {

using namespace onvif;
using Reply = CameraLine::Reply;

namespace {

// The standard sets no limit; those of real cameras take under 40.
constexpr int maxSerialNumber = 256;

bool isBasic(const QByteArray &challenge)
{
    return challenge.trimmed().toLower().startsWith("basic");
}

/// Whether a camera does not know the operation; some say so without a code of the standard.
bool isUnknownOperation(const SoapFault &fault)
{
    return fault.is("ActionNotSupported") || fault.codes.size() < 2;
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

QString serialNumberFrom(const XmlElement &answer)
{
    return answer.textOf(tds, "SerialNumber");
}

OnvifSignOn::OnvifSignOn(DevInfo device, CameraLine &line, Done done, QObject *parent)
    : QObject(parent)
    , m_device(std::move(device))
    , m_line(line)
    , m_done(std::move(done))
{
}

void OnvifSignOn::start()
{
    m_line.forget();
    m_line.readClock(this, [this](const Reply &reply) { onClock(reply); });
}

void OnvifSignOn::ask(OnvifService service, const XmlElement &operation, Next next)
{
    m_line.post(service, operation, true, this, [=](const Reply &reply) {
        if (reply.isRefused)
            tryNextWay(service, operation, next, reply);
        else
            (this->*next)(reply);
    });
}

void OnvifSignOn::tryNextWay(OnvifService service, const XmlElement &operation, Next next, const Reply &reply)
{
    const bool isFirst = m_line.scheme() == CameraLine::Scheme::None;
    if (isFirst) {
        m_digest = DigestAuth::fromChallenges(reply.challenges);
        m_takesTokens = reply.takesTokens;
        m_takesBasic = std::any_of(reply.challenges.cbegin(), reply.challenges.cend(), isBasic);
    }
    if (m_device.userName.isEmpty())
        return refuse(QStringLiteral("it asks for an account, and its record has no user name"),
                      TroubleReason::Password);
    // Left out on the way, they would make another account of it.
    if (holdsControls(m_device.userName) || !isXmlText(m_device.userName))
        return refuse(QStringLiteral("it asks for an account, and the user name in its record holds characters that "
                                     "cannot be sent"),
                      TroubleReason::Password);
    if (m_digest) {
        m_line.useDigest(*m_digest);
        m_digest.reset();
    } else if (std::exchange(m_takesTokens, false)) {
        m_line.useTokens();
    } else if (!isFirst) {
        return refuse(QStringLiteral("it does not accept the user name or the password"), TroubleReason::Password);
    } else {
        return refuse(m_takesBasic ? QStringLiteral("it offers only HTTP Basic, which shows the password")
                                   : QStringLiteral("it asks for an account in a way that is not known here"),
                      TroubleReason::SignOn);
    }
    ask(service, operation, next);
}

bool OnvifSignOn::isAnswer(const Reply &reply, const char *name)
{
    if (reply.isGood() && reply.answer.is(tds, name))
        return true;
    if (!reply.trouble.isEmpty())
        fail(reply.trouble, reply.reason == TroubleReason::None ? TroubleReason::SignOn : reply.reason);
    else
        fail(reply.fault ? reply.fault->text() : QStringLiteral("it answers with what was not asked for"),
             TroubleReason::SignOn);
    return false;
}

void OnvifSignOn::onClock(const Reply &reply)
{
    // A camera that refuses to tell the time is there all the same.
    if (!reply.fault && !isAnswer(reply, "GetSystemDateAndTimeResponse"))
        return;
    XmlElement operation(tds, "GetServices");
    operation.append(XmlElement(tds, "IncludeCapability", QStringLiteral("false")));
    ask(OnvifService::Device, operation, &OnvifSignOn::onServices);
}

void OnvifSignOn::onServices(const Reply &reply)
{
    if (reply.fault && isUnknownOperation(*reply.fault)) {
        XmlElement operation(tds, "GetCapabilities");
        operation.append(XmlElement(tds, "Category", QStringLiteral("All")));
        return ask(OnvifService::Device, operation, &OnvifSignOn::onCapabilities);
    }
    if (!isAnswer(reply, "GetServicesResponse"))
        return;
    const std::vector<const XmlElement *> services = reply.answer.all(tds, "Service");
    for (const XmlElement *service : services) {
        // The device service stays where the record has it: that address has just answered.
        const QString name = service->textOf(tds, "Namespace");
        const QString address = service->textOf(tds, "XAddr");
        if (name == QLatin1String(trt))
            m_line.setService(OnvifService::Media, address);
        else if (name == QLatin1String(tr2))
            m_line.setService(OnvifService::Media2, address);
        else if (name == QLatin1String(timg))
            m_line.setService(OnvifService::Imaging, address);
    }
    askForDevice();
}

void OnvifSignOn::onCapabilities(const Reply &reply)
{
    if (!isAnswer(reply, "GetCapabilitiesResponse"))
        return;
    const XmlElement *all = reply.answer.child(tds, "Capabilities");
    const auto take = [this, all](OnvifService service, const char *name) {
        if (const XmlElement *capabilities = all ? all->child(tt, name) : nullptr)
            m_line.setService(service, capabilities->textOf(tt, "XAddr"));
    };
    take(OnvifService::Media, "Media");
    take(OnvifService::Imaging, "Imaging");
    askForDevice();
}

void OnvifSignOn::askForDevice()
{
    ask(OnvifService::Device, XmlElement(tds, "GetDeviceInformation"), &OnvifSignOn::onDevice);
}

void OnvifSignOn::onDevice(const Reply &reply)
{
    if (!isAnswer(reply, "GetDeviceInformationResponse"))
        return;
    m_serialNumber = serialNumberFrom(reply.answer);
    if (m_serialNumber.size() > maxSerialNumber || holdsInvisible(m_serialNumber))
        return refuse(QStringLiteral("its serial number is too long or holds characters that cannot be seen"),
                      TroubleReason::SignOn);
    if (!m_device.serialNumber.isEmpty() && m_serialNumber != m_device.serialNumber)
        return refuse(QStringLiteral("its serial number is %1, not %2")
                          .arg(quoted(m_serialNumber), quoted(m_device.serialNumber)),
                      TroubleReason::SerialNumber);
    // Some cameras tell anybody what they are, and ask for an account only for the rest.
    const bool isMedia = m_line.hasService(OnvifService::Media);
    const bool isOpen = m_line.scheme() == CameraLine::Scheme::None && !m_device.userName.isEmpty();
    if (isOpen && (isMedia || m_line.hasService(OnvifService::Media2)))
        return ask(isMedia ? OnvifService::Media : OnvifService::Media2, XmlElement(isMedia ? trt : tr2, "GetProfiles"),
                   &OnvifSignOn::onProfiles);
    finish();
}

void OnvifSignOn::onProfiles(const Reply &)
{
    finish(); // whatever it says: only whether it asked for an account matters
}

void OnvifSignOn::finish()
{
    if (m_line.scheme() == CameraLine::Scheme::None)
        qCInfo(sdkLog).noquote() << "device" << escaped(m_device.id)
                                 << "asks for no account: whoever reaches it can change it";
    m_done({Outcome::Kind::SignedOn, {}, TroubleReason::None, m_serialNumber});
}

void OnvifSignOn::fail(const QString &text, TroubleReason reason)
{
    m_done({Outcome::Kind::Failed, text, reason});
}

void OnvifSignOn::refuse(const QString &text, TroubleReason reason)
{
    m_done({Outcome::Kind::Refused, text, reason});
}

} // namespace vms_sdk
