#pragma once

#include <vms_client_sdk/onvif/OnvifFamilies.h>

namespace vms_sdk {

/// A family whose keys stand in configurations that are always there, carried out as its table says: each is read
/// whole, compared, checked against the camera's options, and written back whole with what differs.
class ConfigurationFamily : public OnvifFamily
{
public:
    /// @param service whose operations are used, but for imaging settings: then it is the media service
    ConfigurationFamily(const FamilyTable &table, OnvifService service);

    std::vector<OnvifOperation> nextReads() override;
    void takeAnswers(std::vector<XmlElement> answers) override;
    QJsonObject held() const override;
    OnvifPlan plan(const QJsonObject &param) override;

protected:
    /// The configurations that are of interest, in the family's order: the one of the first profile that has one.
    /// @param profiles null when they don't matter
    virtual std::vector<const XmlElement *> chosen(const std::vector<const XmlElement *> &configurations,
                                                   const XmlElement *profiles) const;
    /// What a new encoding needs beside the keys, before these are fitted.
    virtual void completeEncoding(XmlElement *configuration, const KeyOptions &options) const;
    /// Limits of several keys together.
    /// @param asked the members that are to change
    virtual QString refusedTogether(const QJsonObject &asked, const XmlElement &configuration,
                                    const KeyOptions &options) const;

    OnvifService service() const { return m_service; }

private:
    struct Held
    {
        XmlElement configuration; // under the name that the write gives it
        XmlElement options; // the answer
    };

    OnvifService ownService() const;
    XmlElement read(const char *operation, const char *tokenName, const QString &token) const;
    void takeConfigurations(std::vector<XmlElement> *answers);
    KeyOptions optionsOf(const Held &held, const XmlElement &configuration) const;
    QJsonObject valuesOf(const Held &held) const;
    int entryFor(const QJsonObject &entry) const;
    QString changeKeys(const Held &held, const QJsonObject &asked, XmlElement *configuration) const;
    void planOne(int index, const QString &prefix, const QJsonObject &asked, OnvifPlan *plan);
    OnvifOperation setOperation(const XmlElement &configuration) const;

    const FamilyTable &m_table;
    const OnvifService m_service;
    int m_stage = 0;
    QString m_sourceToken; // of imaging settings
    std::vector<Held> m_held;
};

} // namespace vms_sdk
