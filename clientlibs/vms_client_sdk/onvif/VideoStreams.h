#pragma once

#include <vms_client_sdk/onvif/ConfigurationFamily.h>

namespace vms_sdk {

/// The streams of a camera: the encoders of its first video source, in the order of the first profile that uses each.
/// Encoders without a profile count only where no profile has an encoder; then the largest comes first.
class VideoStreams final : public ConfigurationFamily
{
public:
    using ConfigurationFamily::ConfigurationFamily;

protected:
    std::vector<const XmlElement *> chosen(const std::vector<const XmlElement *> &configurations,
                                           const XmlElement *profiles) const override;
    void completeEncoding(XmlElement *configuration, const KeyOptions &options) const override;
    QString refusedTogether(const QJsonObject &asked, const XmlElement &configuration,
                            const KeyOptions &options) const override;
};

} // namespace vms_sdk
