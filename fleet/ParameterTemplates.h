#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QJsonObject>
#include <QRandomGenerator>

namespace device_fleet {

/// Draws a device's parameters from parameters.json, which holds one template for each parameter object. A template is
/// ordinary JSON in which an object may stand for a choice:
///
///     {"$oneOf": [a, b, …]}              one of these
///     {"$range": [low, high]}            a whole number from low to high
///     {"$first": {"$oneOf": [1, 2]}, "of": […]}   that many entries of the list, from its beginning
///     {"$percent": 90, "value": v}       v in 90 of 100 devices; in the others the member is missing
///     {"$device": "name"}                of this device: name, serialNumber, ip or mac
///
/// The same generator state gives the same parameters.
QJsonObject drawParameters(const vms_sdk::DevInfo &device, QRandomGenerator &random);

} // namespace device_fleet
