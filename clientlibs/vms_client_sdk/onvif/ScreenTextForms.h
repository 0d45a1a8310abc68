#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QStringList>

namespace vms_sdk {

/// The two texts on the screen that the family knows. Plain data.
struct ScreenTextKind
{
    const char *type; ///< in the standard; also the attribute that says how many there may be of it
    const char *contentKey; ///< the format of a date, or the text itself
    const char *positionKey;
    const char *usualPosition; ///< of one that is made without a place being asked for
    bool isDate;
};
extern const ScreenTextKind dateText; ///< DateAndTime: "timeFormat", "timePos"
extern const ScreenTextKind plainText; ///< Plain: "channelName", "position"

// How a text stands in a camera's element (an OSD of the standard), in words of ours, and what its options allow.

bool isOfKind(const XmlElement &osd, const ScreenTextKind &kind);

/// "left_top" and the like for the corners. Another place is in the camera's words, a free one with its coordinates:
/// "Custom(0.45,-0.8)".
QString positionOf(const XmlElement &osd);

/// @param options OSDOptions
/// @return why the camera would not allow it, printable; empty when it was set
QString setPosition(const ScreenTextKind &kind, const QString &position, const XmlElement &options, XmlElement *osd);

/// The corners that the camera offers, in our words.
QStringList cornersOf(const XmlElement &options);

/// A date's format: "YYYY-MM-DD hh:mm:ss" and the like for those that the pages offer, any other in the camera's words
/// for date and time; a name as it is.
QString contentOf(const ScreenTextKind &kind, const XmlElement &osd);

/// As setPosition().
QString setContent(const ScreenTextKind &kind, const QString &content, const XmlElement &options, XmlElement *osd);

/// The date formats that the camera offers, in our words, in its order.
QStringList formatsOf(const XmlElement &options);

/// A new text, without a token, at no place and without content yet; colours and size are the camera's.
XmlElement madeText(const ScreenTextKind &kind, const QString &sourceConfiguration, const char *ofNamespace);

} // namespace vms_sdk
