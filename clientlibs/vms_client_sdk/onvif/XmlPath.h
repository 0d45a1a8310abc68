#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <initializer_list>

namespace vms_sdk {

// Where a value stands in a configuration: names of elements of the official schema (tt), "/" between them, and "@"
// before the name of an attribute: "RateControl/BitrateLimit", "RateControl/@ConstantBitRate", "@GovLength". The empty
// path is the element itself.

/// All elements that a path leads to; every one of the last name.
std::vector<const XmlElement *> elementsAt(const XmlElement &root, const QByteArray &path);

/// The text there; none when the element or the attribute is missing.
std::optional<QString> textAt(const XmlElement &root, const QByteArray &path);

/// Sets the text of an element that is there, or an attribute of one.
void setTextAt(XmlElement *root, const QByteArray &path, const QString &text);

/// The child of that name; a new one is put where the schema has it.
/// @param order the names of the children of this type, in the order of the schema
XmlElement &placed(XmlElement *parent, const char *name, std::initializer_list<const char *> order);

/// Takes out the child of that name, if there is one.
void removeChild(XmlElement *parent, const char *name);

} // namespace vms_sdk
