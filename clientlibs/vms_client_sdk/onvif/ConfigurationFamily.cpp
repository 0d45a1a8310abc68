#include <vms_client_sdk/onvif/ConfigurationFamily.h>

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/MediaProfiles.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlPath.h>

#include <QJsonArray>
#include <QSet>

#include <map>

namespace vms_sdk {

namespace {

// Of the entries of a list: what tells them apart.
const QLatin1String streamIdKey("streamid");
const QLatin1String tokenKey("token");

} // namespace

ConfigurationFamily::ConfigurationFamily(const FamilyTable &table, OnvifService service)
    : m_table(table)
    , m_service(service)
{
}

/// The service of the reads and the write themselves.
OnvifService ConfigurationFamily::ownService() const
{
    return m_table.reach == FamilyReach::VideoSource ? OnvifService::Imaging : m_service;
}

XmlElement ConfigurationFamily::read(const char *operation, const char *tokenName, const QString &token) const
{
    const char *const uri = namespaceOf(ownService());
    XmlElement request(uri, operation);
    if (!token.isNull())
        request.append(XmlElement(uri, tokenName, token));
    return request;
}

std::vector<OnvifOperation> ConfigurationFamily::nextReads()
{
    std::vector<OnvifOperation> reads;
    if (m_stage == 0) {
        if (*m_table.list)
            reads.push_back(profilesRead(m_service, {"VideoSource", m_table.kind}));
        else if (*m_table.kind)
            reads.push_back(profilesRead(m_service, {m_table.kind}));
        if (m_table.reach == FamilyReach::Device || m_table.reach == FamilyReach::Configurations)
            reads.push_back({ownService(), read(m_table.getOperation, "", {})});
    } else if (m_stage == 1 && m_table.reach == FamilyReach::Configurations) {
        for (const Held &each : m_held)
            reads.push_back({ownService(), read(m_table.optionsOperation, "ConfigurationToken",
                                                each.configuration.attribute("token"))});
    } else if (m_stage == 1 && !m_sourceToken.isEmpty()) {
        for (const char *operation : {m_table.getOperation, m_table.optionsOperation})
            reads.push_back({ownService(), read(operation, "VideoSourceToken", m_sourceToken)});
    }
    return reads;
}

void ConfigurationFamily::takeAnswers(std::vector<XmlElement> answers)
{
    const int stage = m_stage++;
    if (m_table.reach == FamilyReach::VideoSource) {
        if (stage == 0) {
            const XmlElement *source = firstConfiguration(answers.front(), m_service, m_table.kind);
            m_sourceToken = source ? source->textOf(onvif::tt, "SourceToken") : QString();
            return;
        }
        if (const XmlElement *settings = answers.front().child(onvif::timg, m_table.part))
            m_held.push_back({takenOut(answers.front(), *settings, m_table.setPart), std::move(answers.back())});
    } else if (stage == 0) {
        takeConfigurations(&answers);
    } else {
        for (size_t i = 0; i < m_held.size() && i < answers.size(); ++i)
            m_held[i].options = std::move(answers[i]);
    }
}

void ConfigurationFamily::takeConfigurations(std::vector<XmlElement> *answers)
{
    const XmlElement &answer = answers->back();
    const auto all = answer.all(namespaceOf(m_service), m_table.part);
    const auto configurations = chosen(all, *m_table.kind ? &answers->front() : nullptr);
    QSet<QString> tokens;
    for (const XmlElement *each : configurations) {
        // Of two with one token, what is meant for the second would be written to the first.
        if (tokens.contains(each->attribute("token")))
            continue;
        tokens.insert(each->attribute("token"));
        m_held.push_back({takenOut(answer, *each, m_table.setPart), {}});
    }
}

std::vector<const XmlElement *> ConfigurationFamily::chosen(const std::vector<const XmlElement *> &configurations,
                                                            const XmlElement *profiles) const
{
    if (configurations.empty())
        return {};
    const XmlElement *used = profiles ? firstConfiguration(*profiles, m_service, m_table.kind) : nullptr;
    for (const XmlElement *each : configurations)
        if (used && each->attribute("token") == used->attribute("token"))
            return {each};
    return {configurations.front()};
}

void ConfigurationFamily::completeEncoding(XmlElement *, const KeyOptions &) const { }

QString ConfigurationFamily::refusedTogether(const QJsonObject &, const XmlElement &, const KeyOptions &) const
{
    return {};
}

/// @param configuration the held one, or one that is being changed: its encoding decides
KeyOptions ConfigurationFamily::optionsOf(const Held &held, const XmlElement &configuration) const
{
    return optionsFor(held.options.all(namespaceOf(ownService()), m_table.optionsPart),
                      configuration.textOf(onvif::tt, "Encoding"));
}

QJsonObject ConfigurationFamily::valuesOf(const Held &held) const
{
    const KeyOptions options = optionsOf(held, held.configuration);
    QJsonObject values;
    for (const KeyRow *row = m_table.keys; row && row->key; ++row) {
        const QJsonValue value = valueOf(*row, held.configuration, options);
        if (!value.isUndefined())
            values.insert(QLatin1String(row->key), value);
    }
    return values;
}

QJsonObject ConfigurationFamily::held() const
{
    if (!*m_table.list)
        return m_held.empty() ? QJsonObject() : valuesOf(m_held.front());
    QJsonArray entries;
    for (size_t i = 0; i < m_held.size(); ++i) {
        QJsonObject entry = valuesOf(m_held[i]);
        entry.insert(streamIdKey, int(i));
        entry.insert(tokenKey, m_held[i].configuration.attribute("token"));
        entries.append(entry);
    }
    return {{QLatin1String(m_table.list), entries}};
}

/// The place of the configuration that an entry of a write means; -1: there is none.
int ConfigurationFamily::entryFor(const QJsonObject &entry) const
{
    const int count = int(m_held.size());
    if (!entry.contains(tokenKey)) {
        const int id = entry.value(streamIdKey).toInt(-1);
        return id < count ? id : -1;
    }
    const QString token = entry.value(tokenKey).toString();
    for (int i = 0; i < count; ++i)
        if (m_held[size_t(i)].configuration.attribute("token") == token)
            return i;
    return -1;
}

OnvifPlan ConfigurationFamily::plan(const QJsonObject &param)
{
    OnvifPlan plan;
    std::map<int, QJsonObject> asked;
    const QJsonObject settings = settingsOf(param);
    if (!*m_table.list) {
        asked[0] = settings;
    } else {
        const QJsonArray entries = settings.value(QLatin1String(m_table.list)).toArray();
        for (const QJsonValue &value : entries) {
            QJsonObject entry = value.toObject();
            const int place = entryFor(entry);
            if (place < 0) {
                plan.refused =
                    notAllowed(QStringLiteral("stream"), entry.value(entry.contains(tokenKey) ? tokenKey : streamIdKey),
                               QStringLiteral("%1 streams").arg(m_held.size()));
                return plan;
            }
            entry.remove(tokenKey);
            entry.remove(streamIdKey);
            for (auto it = entry.begin(); it != entry.end(); ++it)
                asked[place].insert(it.key(), it.value());
        }
    }
    for (const auto &[place, members] : asked) {
        const QString prefix = *m_table.list ? QStringLiteral("stream%1.").arg(place) : QString();
        planOne(place, prefix, members, &plan);
        if (!plan.refused.isEmpty())
            break;
    }
    return plan;
}

/// Adds what is to become of one configuration.
void ConfigurationFamily::planOne(int index, const QString &prefix, const QJsonObject &asked, OnvifPlan *plan)
{
    const bool isThere = index < int(m_held.size());
    const QJsonObject values = isThere ? valuesOf(m_held[size_t(index)]) : QJsonObject();
    QJsonObject differing;
    for (auto it = asked.begin(); it != asked.end(); ++it) {
        if (!values.contains(it.key()))
            plan->dropped.append(prefix + it.key());
        else if (values.value(it.key()) != it.value())
            differing.insert(it.key(), it.value());
    }
    if (differing.isEmpty())
        return;
    const Held &held = m_held[size_t(index)];
    XmlElement changed = held.configuration;
    const QString refused = changeKeys(held, differing, &changed);
    if (!refused.isEmpty()) {
        plan->refused = prefix + refused;
        return;
    }
    if (writeXml(changed) == writeXml(held.configuration))
        return; // the camera's steps are wider: the nearest is what it holds already
    plan->writes.push_back({setOperation(changed), [this, index, changed](const XmlElement &) {
                                m_held[size_t(index)].configuration = changed;
                            }});
}

/// Sets the members of @p asked in @p configuration. A value that is not asked for is never checked; with a new
/// encoding, a share keeps its place in the new range, and what is to be fitted is.
/// @return why it is not allowed
QString ConfigurationFamily::changeKeys(const Held &held, const QJsonObject &asked, XmlElement *configuration) const
{
    const QJsonObject before = valuesOf(held);
    const QString encoding = held.configuration.textOf(onvif::tt, "Encoding");
    KeyOptions options = optionsOf(held, *configuration);
    bool isOtherEncoding = false;
    for (const KeyRow *row = m_table.keys; row && row->key; ++row) {
        const QString key = QLatin1String(row->key);
        QString refused;
        if (asked.contains(key) && isOtherEncoding && valueOf(*row, *configuration, options).isUndefined())
            refused = notAllowed(key, asked.value(key), QStringLiteral("no such value with this encoding"));
        else if (asked.contains(key))
            refused = setValue(*row, asked.value(key), options, configuration);
        else if (isOtherEncoding && row->isFitted)
            fitValue(*row, options, configuration);
        else if (isOtherEncoding && row->form == KeyForm::Share && before.contains(key)
                 && !valueOf(*row, *configuration, options).isUndefined())
            refused = setValue(*row, before.value(key), options, configuration);
        if (!refused.isEmpty())
            return refused;
        if (row->form == KeyForm::Encoding && configuration->textOf(onvif::tt, "Encoding") != encoding) {
            isOtherEncoding = true;
            options = optionsOf(held, *configuration);
            completeEncoding(configuration, options);
        }
    }
    return refusedTogether(asked, *configuration, options);
}

OnvifOperation ConfigurationFamily::setOperation(const XmlElement &configuration) const
{
    const OnvifService service = ownService();
    const char *const uri = namespaceOf(service);
    XmlElement request(uri, m_table.setOperation);
    if (m_table.reach == FamilyReach::VideoSource)
        request.append(XmlElement(uri, "VideoSourceToken", m_sourceToken));
    request.append(configuration);
    // What is set outlives a restart: Media2 has no other way, and the device service neither.
    if (service == OnvifService::Media || service == OnvifService::Imaging)
        request.append(XmlElement(uri, "ForcePersistence", QStringLiteral("true")));
    return {service, request};
}

} // namespace vms_sdk
