#pragma once

#include <vms_client_sdk/onvif/XmlElement.h>

#include <QByteArray>
#include <QHash>
#include <QString>

namespace device_fleet {

/// What a template's placeholders stand for; a missing one is empty.
using TemplateValues = QHash<QByteArray, QString>;

/// An element made from a template of camera.xml, with the declarations that it needs. A template is ordinary XML in
/// which
///
///     {name}          in a text or an attribute stands for a value
///     only="name"     the element is there only when that value is not empty
///     each="a b"      the element is there once for each word; {1} and {2} are its parts, as in "1920x1080"
///     attribute="{x}" is left out where the value is empty
vms_sdk::XmlElement fromTemplate(const QString &name, const TemplateValues &values);

} // namespace device_fleet
