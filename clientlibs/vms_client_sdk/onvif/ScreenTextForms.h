#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QStringList>

#include <optional>

namespace vms_sdk {

/// The two texts on the screen that the family knows. Plain data.
struct ScreenTextKind
{
    const char *type; ///< in the standard; also the attribute that says how many there may be of it
    const char *contentKey; ///< the format of a date, or the text itself
    const char *positionKey;
    const char *styleKey; ///< styleOf(): a member of the adapter's own
    const char *usualPosition; ///< of one that is made without a place being asked for
    bool isDate;
};
extern const ScreenTextKind dateText; ///< DateAndTime: "timeFormat", "timePos", "timeStyle"
extern const ScreenTextKind plainText; ///< Plain: "channelName", "position", "nameStyle"

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

/// All that is in a text beside its content and its place, such as colours, size and what a maker has added: as XML, so
/// that a text that was deleted can be made anew as it was. Empty when there is nothing of that.
QString styleOf(const XmlElement &osd);

/// The date formats that the camera offers, in our words, in its order.
QStringList formatsOf(const XmlElement &options);

/// A new text, without a token, at no place and without content yet.
/// @param style styleOf() a former one; empty: colours and size are the camera's
/// @return none when the style is none
std::optional<XmlElement> madeText(const ScreenTextKind &kind, const QString &style, const QString &sourceConfiguration,
                                   const char *ofNamespace);

} // namespace vms_sdk
