#include <vms_client_sdk/onvif/ScreenTexts.h>

#include <vms_client_sdk/onvif/KeyMap.h>
#include <vms_client_sdk/onvif/MediaProfiles.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

#include <algorithm>

namespace vms_sdk {

namespace {

const char showKey[] = "bShowOSD";
const QLatin1String hidden("hide");
const ScreenTextKind *const kinds[] = {&dateText, &plainText};

} // namespace

ScreenTexts::ScreenTexts(OnvifService media)
    : m_media(media)
{
}

std::vector<OnvifOperation> ScreenTexts::nextReads()
{
    if (m_stage == 0)
        return {profilesRead(m_media, {"VideoSource"})};
    if (m_stage > 1 || m_sourceConfiguration.isEmpty())
        return {};
    const char *const uri = namespaceOf(m_media);
    std::vector<OnvifOperation> reads;
    for (const char *operation : {"GetOSDs", "GetOSDOptions"}) {
        XmlElement request(uri, operation);
        request.append(XmlElement(uri, "ConfigurationToken", m_sourceConfiguration));
        reads.push_back({m_media, std::move(request)});
    }
    return reads;
}

void ScreenTexts::takeAnswers(std::vector<XmlElement> answers)
{
    if (m_stage++ == 0) {
        const XmlElement *source = firstConfiguration(answers.front(), m_media, "VideoSource");
        m_sourceConfiguration = source ? source->attribute("token") : QString();
        return;
    }
    const char *const uri = namespaceOf(m_media);
    const auto osds = answers.front().all(uri, "OSDs");
    for (const XmlElement *each : osds) {
        // Some cameras answer with those of all sources.
        const QString of = each->textOf(onvif::tt, "VideoSourceConfigurationToken");
        if (of.isEmpty() || of == m_sourceConfiguration)
            m_osds.push_back(takenOut(answers.front(), *each, "OSD"));
    }
    if (const XmlElement *options = answers.back().child(uri, "OSDOptions"))
        m_options = *options;
}

const XmlElement *ScreenTexts::find(const ScreenTextKind &kind) const
{
    const auto found =
        std::find_if(m_osds.begin(), m_osds.end(), [&kind](const XmlElement &osd) { return isOfKind(osd, kind); });
    return found == m_osds.end() ? nullptr : &*found;
}

int ScreenTexts::countOf(const ScreenTextKind &kind) const
{
    return int(
        std::count_if(m_osds.begin(), m_osds.end(), [&kind](const XmlElement &osd) { return isOfKind(osd, kind); }));
}

/// Whether the camera takes no more than @p count.
/// @param attribute of MaximumNumberOfOSDs
bool ScreenTexts::isFull(int count, const char *attribute) const
{
    const auto most = textAt(m_options, QByteArray("MaximumNumberOfOSDs/@").append(attribute));
    bool isNumber = false;
    const int number = most.value_or(QString()).toInt(&isNumber);
    return isNumber && count >= number;
}

bool ScreenTexts::canMake(const ScreenTextKind &kind) const
{
    const auto offers = [this](const char *path, const char *word) {
        const auto elements = elementsAt(m_options, path);
        return std::any_of(elements.begin(), elements.end(),
                           [word](const XmlElement *each) { return each->text() == QLatin1String(word); });
    };
    return offers("Type", "Text") && offers("TextOption/Type", kind.type) && !cornersOf(m_options).isEmpty()
        && !isFull(int(m_osds.size()), "Total") && !isFull(countOf(kind), kind.isDate ? "DateAndTime" : "PlainText");
}

bool ScreenTexts::isShown() const
{
    return find(dateText) || find(plainText);
}

QJsonObject ScreenTexts::held() const
{
    QJsonObject held;
    for (const ScreenTextKind *kind : kinds) {
        const XmlElement *osd = find(*kind);
        if (!osd && !canMake(*kind))
            continue;
        held.insert(QLatin1String(kind->contentKey), osd ? contentOf(*kind, *osd) : QString());
        held.insert(QLatin1String(kind->positionKey), osd ? positionOf(*osd) : QString(hidden));
        held.insert(QLatin1String(kind->styleKey), osd ? styleOf(*osd) : QString());
        held.insert(QLatin1String(showKey), isShown());
    }
    return held;
}

/// A style is only for a text that is made anew.
bool ScreenTexts::isStyleOfPresent(const QString &key) const
{
    return std::any_of(std::begin(kinds), std::end(kinds), [this, &key](const ScreenTextKind *kind) {
        return key == QLatin1String(kind->styleKey) && find(*kind);
    });
}

/// Sorts what is asked.
/// @return why it cannot be
QString ScreenTexts::readAsked(const QJsonObject &settings, QStringList *dropped, Asked *asked) const
{
    const QJsonObject now = held();
    for (auto it = settings.begin(); it != settings.end(); ++it) {
        if (!now.contains(it.key())) {
            dropped->append(it.key());
            continue;
        }
        const QJsonValue present = now.value(it.key());
        if (it.value() == present)
            continue;
        if (isStyleOfPresent(it.key())) {
            dropped->append(it.key());
            continue;
        }
        if (it.value().type() != present.type())
            return notAllowed(it.key(), it.value(),
                              present.isBool() ? QStringLiteral("true, false") : QStringLiteral("texts"));
        asked->members.insert(it.key(), it.value());
    }
    asked->isOn = asked->has(showKey) && !isShown();
    asked->isOff = asked->has(showKey) && isShown();
    asked->isPlaced = std::any_of(std::begin(kinds), std::end(kinds), [this, asked](const ScreenTextKind *kind) {
        return !find(*kind) && asked->has(kind->positionKey);
    });
    return {};
}

ScreenTexts::Fate ScreenTexts::fateOf(const ScreenTextKind &kind, const Asked &asked) const
{
    const bool isAsked = asked.has(kind.positionKey) || asked.has(kind.contentKey);
    if (find(kind)) {
        if (asked.isOff || asked.of(kind.positionKey) == hidden)
            return Fate::Goes;
        return isAsked ? Fate::Changes : Fate::Stays;
    }
    const bool isDue = asked.isOn && !asked.isPlaced && kind.isDate && canMake(kind);
    return (isAsked && !asked.isOff) || isDue ? Fate::Comes : Fate::Stays;
}

QString ScreenTexts::refused(const Asked &asked, const std::map<const ScreenTextKind *, Fate> &fates) const
{
    int total = int(m_osds.size());
    const ScreenTextKind *made = nullptr;
    for (const ScreenTextKind *kind : kinds) {
        const Fate fate = fates.at(kind);
        const bool isMade = fate == Fate::Comes;
        made = isMade ? kind : made;
        total += isMade ? 1 : 0;
        if (fate == Fate::Goes && countOf(*kind) > 1)
            return QStringLiteral(
                       "%1: the device shows %2 texts of this kind, and the next would take the place of the "
                       "one that is hidden")
                .arg(QLatin1String(kind->positionKey))
                .arg(countOf(*kind));
        if (isMade && !asked.isOn && !isShown())
            return QStringLiteral("%1: the device shows no text; bShowOSD must be asked for too")
                .arg(QLatin1String(asked.has(kind->positionKey) ? kind->positionKey : kind->contentKey));
    }
    if (made && isFull(total - 1, "Total"))
        return QStringLiteral("%1: the device has no room for one more text").arg(QLatin1String(made->positionKey));
    if (asked.isOn && !made)
        return QStringLiteral("%1: the device shows no date, and no channelName is asked for")
            .arg(QLatin1String(showKey));
    return {};
}

OnvifPlan ScreenTexts::plan(const QJsonObject &param)
{
    OnvifPlan plan;
    Asked asked;
    plan.refused = readAsked(settingsOf(param), &plan.dropped, &asked);
    if (!plan.refused.isEmpty() || asked.members.isEmpty())
        return plan;
    std::map<const ScreenTextKind *, Fate> fates;
    for (const ScreenTextKind *kind : kinds)
        fates[kind] = fateOf(*kind, asked);
    plan.refused = refused(asked, fates);
    // What goes makes room for what comes.
    for (const Fate due : {Fate::Goes, Fate::Changes, Fate::Comes}) {
        for (const ScreenTextKind *kind : kinds) {
            if (fates[kind] != due || !plan.refused.isEmpty())
                continue;
            if (due == Fate::Goes)
                plan.writes.push_back(deletion(*find(*kind)));
            else
                plan.refused = due == Fate::Changes ? change(*kind, asked, &plan) : creation(*kind, asked, &plan);
        }
    }
    return plan;
}

OnvifWrite ScreenTexts::deletion(const XmlElement &osd)
{
    const char *const uri = namespaceOf(m_media);
    const QString token = osd.attribute("token");
    XmlElement request(uri, "DeleteOSD");
    request.append(XmlElement(uri, "OSDToken", token));
    return {{m_media, std::move(request)}, [this, token](const XmlElement &) {
                const auto hasToken = [&token](const XmlElement &each) { return each.attribute("token") == token; };
                m_osds.erase(std::remove_if(m_osds.begin(), m_osds.end(), hasToken), m_osds.end());
            }};
}

QString ScreenTexts::change(const ScreenTextKind &kind, const Asked &asked, OnvifPlan *plan)
{
    XmlElement osd = *find(kind);
    QString refused;
    if (asked.has(kind.positionKey))
        refused = setPosition(kind, asked.of(kind.positionKey), m_options, &osd);
    if (refused.isEmpty() && asked.has(kind.contentKey))
        refused = setContent(kind, asked.of(kind.contentKey), m_options, &osd);
    if (!refused.isEmpty())
        return refused;
    XmlElement request(namespaceOf(m_media), "SetOSD");
    request.append(osd);
    plan->writes.push_back({{m_media, std::move(request)}, [this, osd](const XmlElement &) {
                                for (XmlElement &each : m_osds)
                                    if (each.attribute("token") == osd.attribute("token"))
                                        each = osd;
                            }});
    return {};
}

QString ScreenTexts::creation(const ScreenTextKind &kind, const Asked &asked, OnvifPlan *plan)
{
    const char *const uri = namespaceOf(m_media);
    const QStringList corners = cornersOf(m_options);
    const QString usual = QLatin1String(kind.usualPosition);
    const QString usualPosition = corners.contains(usual) ? usual : corners.value(0);
    const QString usualContent = kind.isDate ? formatsOf(m_options).value(0) : QString();
    const std::optional<XmlElement> start = madeText(kind, asked.of(kind.styleKey), m_sourceConfiguration, uri);
    if (!start)
        return notAllowed(QLatin1String(kind.styleKey), asked.of(kind.styleKey),
                          QStringLiteral("that of a former text"));
    XmlElement osd = *start;
    QString refused =
        setPosition(kind, asked.has(kind.positionKey) ? asked.of(kind.positionKey) : usualPosition, m_options, &osd);
    if (refused.isEmpty())
        refused =
            setContent(kind, asked.has(kind.contentKey) ? asked.of(kind.contentKey) : usualContent, m_options, &osd);
    if (!refused.isEmpty())
        return refused;
    XmlElement request(uri, "CreateOSD");
    request.append(osd);
    plan->writes.push_back({{m_media, std::move(request)}, [this, osd](const XmlElement &answer) {
                                XmlElement made = osd;
                                made.setAttribute("token", answer.textOf(namespaceOf(m_media), "OSDToken"));
                                m_osds.push_back(std::move(made));
                            }});
    return {};
}

} // namespace vms_sdk
