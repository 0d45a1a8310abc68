#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QStringList>

namespace vms_sdk {

/// What a camera allows for one value: a range, or a list of words or numbers in the camera's spelling.
struct KeyLimit
{
    bool isRange = false;
    double min = 0;
    double max = 0;
    QStringList words;

    bool allows(double number) const;
    /// "64 to 8192", "H264, JPEG"; printable, and short for long lists.
    QString text() const;
};

/// A short printable list for messages.
QString listed(const QStringList &words);

/// The part of a camera's options that counts for a configuration with one encoding.
struct KeyOptions
{
    QStringList encodings; ///< all that there are
    std::vector<const XmlElement *> scopes; ///< where limits stand; the particular one before the general one

    /// @param paths as XmlPath.h has them; "|" between alternatives. An attribute called "…Range" has two numbers.
    /// @return none: the camera names no limit
    std::optional<KeyLimit> limitAt(const char *paths) const;
};

/// Sorts the options that a camera has answered with. Media2 has an element for each encoding; Media has the encodings
/// nested, video ones with an extension in which the limits of the bit rate stand; the others have no encoding.
KeyOptions optionsFor(const std::vector<const XmlElement *> &options, const QString &encoding);

} // namespace vms_sdk
