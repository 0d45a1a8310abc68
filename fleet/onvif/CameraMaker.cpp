#include "fleet/onvif/CameraMaker.h"

#include "fleet/Site.h"
#include "fleet/SiteTexts.h"
#include "fleet/onvif/CameraTemplates.h"
#include "fleet/onvif/TraitDealer.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QHostAddress>
#include <QRandomGenerator>

#include <array>

namespace device_fleet {

using namespace vms_sdk::onvif;

namespace {

/// Fills a camera's configurations in.
class Equipment
{
public:
    Equipment(const Dealer &dealer, CameraState *state, QRandomGenerator *random);

    void addSource(int source, int streams);
    void addAudio();
    void addOsd(int kind);

private:
    CameraConfiguration &add(const char *kind, const QString &templateName, const TemplateValues &values);
    QString token(const char *what, int number) const;
    TemplateValues streamValues(int stream) const;
    void addStream(int source, int stream);
    void addImaging(int source);
    void addText(const QString &type, TemplateValues values);

    CameraState &m_camera;
    QRandomGenerator &m_random;
    QString m_vendor, m_rotate;
    int m_tokenKind;
    int m_qualityKind;
    bool m_isFast;
    bool m_hasRateMode; // constant and variable bit rate
    int m_streams = 0; // made so far
};

Equipment::Equipment(const Dealer &dealer, CameraState *state, QRandomGenerator *random)
    : m_camera(*state)
    , m_random(*random)
    , m_vendor(dealer.isOneOf(Trait::Vendor, 2) ? QString() : text("basic"))
    , m_rotate(dealer.isOneOf(Trait::Rotation, 4) ? QString() : text("180"))
    , m_tokenKind(dealer.deal(Trait::Tokens, 3))
    , m_qualityKind(random->bounded(3))
    , m_isFast(random->bounded(2) == 0)
    , m_hasRateMode(random->bounded(2) == 0)
{
}

QString Equipment::token(const char *what, int number) const
{
    static constexpr std::array patterns{"%1_%2", "%1Token%3", "%1%3"};
    return text(patterns.at(std::size_t(m_tokenKind)))
        .arg(text(what))
        .replace(text("%2"), QString::number(number + 1))
        .replace(text("%3"), QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')));
}

CameraConfiguration &Equipment::add(const char *kind, const QString &templateName, const TemplateValues &values)
{
    auto &all = m_camera.configurations[text(kind)];
    all.push_back({values.value("token"), fromTemplate(templateName, values), {}});
    return all.back();
}

void Equipment::addSource(int source, int streams)
{
    const bool isLarge = m_random.bounded(2) == 0;
    TemplateValues values{{"source", token("VideoSource", source)},
                          {"token", token("VideoSourceConfig", source)},
                          {"name", QStringLiteral("Sensor %1").arg(source + 1)},
                          {"useCount", QString::number(streams)},
                          {"width", text(isLarge ? "2560" : "1920")},
                          {"height", text(isLarge ? "1440" : "1080")},
                          {"vendor", m_vendor},
                          {"rotate", m_rotate}};
    m_camera.videoSources.push_back({values.value("source"), fromTemplate(text("VideoSource"), values), {}});
    add(videoSourceKind, text(videoSourceKind), values).options = {
        fromTemplate(text("VideoSourceConfigurationOptions"), values)};
    for (int i = 0; i < streams; ++i)
        addStream(source, i);
    if (m_camera.paths.contains(text(timg)))
        addImaging(source);
}

TemplateValues Equipment::streamValues(int stream) const
{
    struct Stream
    {
        const char *name, *width, *height, *resolutions, *bitRate, *bitRateMax;
    };
    static constexpr std::array<Stream, 3> streams{
        {{"MainStream", "1920", "1080", "2560x1440 2304x1296 1920x1080 1280x720", "4096", "16384"},
         {"SubStream", "704", "576", "1280x720 704x576 640x480 352x288", "512", "4096"},
         {"ThirdStream", "640", "480", "640x480 352x288", "256", "2048"}}};
    const Stream &made = streams.at(std::size_t(stream));
    return {{"name", text(made.name)},
            {"width", text(made.width)},
            {"height", text(made.height)},
            {"resolutions", text(made.resolutions)},
            {"bitRate", text(made.bitRate)},
            {"bitRateMax", text(made.bitRateMax)},
            {"vendor", m_vendor}};
}

void Equipment::addStream(int source, int stream)
{
    static constexpr std::array<std::array<const char *, 3>, 3> qualities{
        {{"0", "100", "70"}, {"1", "6", "4"}, {"0", "10", "6"}}};
    const auto &quality = qualities.at(std::size_t(m_qualityKind));
    const QString encoding = m_camera.traits.hasMedia2 && stream == 0 ? text("H265") : text("H264");

    TemplateValues values = streamValues(stream);
    values.insert("token", token("VideoEncoder", m_streams));
    values.insert("number", QString::number(m_streams + 1));
    values.insert("port", QString::number(5000 + 10 * m_streams));
    values.insert("encoding", encoding);
    values.insert("profile", text("Main"));
    values.insert("govLength", text("50"));
    values.insert("frameRate", text(m_isFast ? "30" : "25"));
    values.insert("frameRateMax", text(m_isFast ? "30" : "25"));
    values.insert("frameRates", text(m_isFast ? "1 5 10 12.5 15 20 25 30" : "1 5 8 10 12 15 20 25"));
    values.insert("qualityMin", text(quality[0]));
    values.insert("qualityMax", text(quality[1]));
    values.insert("quality", text(quality[2]));
    values.insert("constantBitRate", m_hasRateMode ? text("false") : QString());
    values.insert("cbrSupported", m_hasRateMode ? text("true") : QString());

    const bool isVer20 = m_camera.traits.hasMedia2;
    CameraConfiguration &encoder = add(videoEncoderKind, text(isVer20 ? "VideoEncoder2" : "VideoEncoder1"), values);
    values.insert("profiles", text("Baseline Main High"));
    values.insert("encoding", text("H264"));
    encoder.options = {fromTemplate(text(isVer20 ? "VideoEncoder2Options" : "VideoEncoder1Options"), values)};
    if (isVer20) {
        values.insert("profiles", text("Main"));
        values.insert("encoding", text("H265"));
        encoder.options.push_back(fromTemplate(text("VideoEncoder2Options"), values));
    }
    m_camera.profiles.push_back(
        {token("Profile", m_streams),
         values.value("name"),
         {{text(videoSourceKind), token("VideoSourceConfig", source)}, {text(videoEncoderKind), encoder.token}}});
    ++m_streams;
}

void Equipment::addAudio()
{
    const bool isVer20 = m_camera.traits.hasMedia2;
    const bool hasAac = m_random.bounded(2) == 0;
    const QString profiles = QString::number(m_camera.profiles.size());
    TemplateValues values{{"token", token("AudioEncoder", 0)},
                          {"name", text("Microphone")},
                          {"useCount", profiles},
                          {"encoding", text(isVer20 ? "PCMU" : "G711")},
                          {"vendor", m_vendor}};
    CameraConfiguration &encoder = add(audioEncoderKind, text(isVer20 ? "AudioEncoder2" : "AudioEncoder1"), values);
    const auto addOption = [&](const char *encoding, const char *bitRates, const char *sampleRates) {
        encoder.options.push_back(fromTemplate(
            text("AudioEncoderOptions"),
            {{"encoding", text(encoding)}, {"bitRates", text(bitRates)}, {"sampleRates", text(sampleRates)}}));
    };
    addOption(isVer20 ? "PCMU" : "G711", "64", "8");
    if (isVer20)
        addOption("PCMA", "64", "8");
    if (hasAac)
        addOption(isVer20 ? "MP4A-LATM" : "AAC", "32 64 128", "8 16 32 48");

    const bool isPercent = m_random.bounded(2) == 0;
    values = {{"token", token("AudioOutputConfig", 0)},
              {"name", text("Loudspeaker")},
              {"useCount", profiles},
              {"output", token("AudioOutput", 0)},
              {"level", text(isPercent ? "60" : "6")},
              {"levelMin", text(isPercent ? "0" : "1")},
              {"levelMax", text(isPercent ? "100" : "10")},
              {"vendor", m_vendor}};
    add(audioOutputKind, text(audioOutputKind), values).options = {
        fromTemplate(text("AudioOutputConfigurationOptions"), values)};
    for (CameraProfile &profile : m_camera.profiles) {
        profile.tokens.insert(text(audioEncoderKind), token("AudioEncoder", 0));
        profile.tokens.insert(text(audioOutputKind), values.value("token"));
    }
}

void Equipment::addImaging(int source)
{
    static constexpr std::array irCuts{"AUTO", "ON", "OFF"};
    TemplateValues values{{"token", token("VideoSource", source)},
                          {"brightness", QString::number(m_random.bounded(40, 61))},
                          {"irCut", oneOf(m_random, irCuts)},
                          {"irCutModes", text("ON OFF AUTO")},
                          {"vendor", m_vendor}};
    add(imagingKind, text(imagingKind), values).options = {fromTemplate(text("ImagingOptions"), values)};
}

void Equipment::addText(const QString &type, TemplateValues values)
{
    values.insert("token", token("OSD", m_camera.osdsMade++));
    values.insert("type", type);
    values.insert("configuration", token("VideoSourceConfig", 0));
    values.insert("vendor", m_vendor);
    values.insert("fontSize", text("32"));
    if (type == text("Plain"))
        values.insert("plainText", m_camera.name.isEmpty() ? text("Camera") : m_camera.name.left(32));
    else
        values.insert("timeFormat", text("HH:mm:ss"));
    add(osdKind, text(osdKind), values);
}

void Equipment::addOsd(int kind)
{
    enum Osd
    {
        None,
        Usual,
        CustomPosition,
        OtherDate,
        NoName
    };
    if (kind == None)
        return;
    static constexpr std::array dates{"yyyy-MM-dd", "MM/dd/yyyy", "dd/MM/yyyy"};
    const QString date = oneOf(m_random, dates);
    addText(text("DateAndTime"),
            {{"position", text("UpperLeft")}, {"dateFormat", kind == OtherDate ? text("dd.MM.yyyy") : date}});
    if (kind == CustomPosition)
        addText(text("Plain"), {{"position", text("Custom")}, {"isCustom", text("yes")}});
    else if (kind != NoName)
        addText(text("Plain"), {{"position", text("LowerRight")}, {"persistent", text("true")}});
    m_camera.osdOptions = {fromTemplate(
        text("OSDOptions"), {{"total", text("4")},
                             {"plainTexts", text("3")},
                             {"positions", text("UpperLeft UpperRight LowerLeft LowerRight")
                                               + (kind == CustomPosition ? text(" Custom") : QString())},
                             {"dateFormats", text("yyyy-MM-dd MM/dd/yyyy dd/MM/yyyy")
                                                 + (kind == OtherDate ? text(" dd.MM.yyyy") : QString())}})};
}

vms_sdk::DevInfo drawInfo(const Dealer &dealer, int index, QRandomGenerator &random)
{
    vms_sdk::DevInfo info;
    info.protocol = vms_sdk::DevProtocol::Onvif;
    info.id = QStringLiteral("onvif-%1").arg(index + 1, 4, 10, QLatin1Char('0'));
    info.kindCode = cameraKind;
    info.accessCode = reachedDirectly;
    info.name = drawName(random);
    info.serialNumber = QStringLiteral("OV%1%2")
                            .arg(random.bounded(0x10000), 4, 16, QLatin1Char('0'))
                            .arg(index + 1, 6, 10, QLatin1Char('0'))
                            .toUpper();
    info.group = groupOf(index);
    info.ipNumber = ownAddress("127.20.0.0", index);
    info.ip = QHostAddress(info.ipNumber).toString();
    const bool isForeign = dealer.isOneOf(Trait::Credentials, 10);
    info.userName = isForeign ? QStringLiteral("wächter") : text("admin");
    info.password = drawStrongPassword(random) + (isForeign ? QStringLiteral("ß倉") : QString());
    return info;
}

} // namespace

SiteCamera makeSiteCamera(quint32 seed, int index)
{
    const Dealer dealer(seed, index);
    const std::array<quint32, 3> seeds{seed, quint32(index), 0x0e1f}; // other draws than those of device number index
    QRandomGenerator random(seeds.data(), qsizetype(seeds.size()));

    SiteCamera made;
    made.info = drawInfo(dealer, index, random);
    CameraState &state = made.state;
    state.traits = dealTraits(dealer);
    state.deviceId = made.info.id;
    state.name = made.info.name;
    state.location = made.info.group;
    state.serialNumber = made.info.serialNumber;
    state.manufacturer = text("Example");
    state.hardware = state.traits.hasMedia2 ? text("EX-200 Dome") : text("EX-100");
    state.mac = QStringLiteral("02-01-00-00-%1-%2")
                    .arg(index / 100 % 100, 2, 10, QLatin1Char('0'))
                    .arg(index % 100, 2, 10, QLatin1Char('0'))
                    .replace(QLatin1Char('-'), QLatin1Char(':'));
    state.paths = dealPaths(dealer, state.traits.hasMedia2, !dealer.isOneOf(Trait::Imaging, 4));
    made.info.path = state.paths.value(text(tds));

    for (const char *kind :
         {videoSourceKind, videoEncoderKind, audioEncoderKind, audioOutputKind, osdKind, imagingKind})
        state.configurations[text(kind)] = {}; // all kinds are there, be it without anything in them
    Equipment equipment(dealer, &state, &random);
    const int sources = dealer.isOneOf(Trait::Sources, 10) ? 2 : 1;
    const int streams = dealer.deal(Trait::Streams, 3) + 1;
    for (int source = 0; source < sources; ++source)
        equipment.addSource(source, streams);
    if (!dealer.isOneOf(Trait::Audio, 4))
        equipment.addAudio();
    equipment.addOsd(dealer.deal(Trait::Osd, 5));
    if (dealer.isOneOf(Trait::Serial, 10))
        made.info.serialNumber.clear(); // the camera has it all the same
    return made;
}

} // namespace device_fleet
