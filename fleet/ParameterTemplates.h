#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QJsonObject>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

namespace device_fleet {

/// A parameter object that devices have, and its two methods.
struct ParameterObject
{
    QString name;
    QString readMethod, writeMethod;
    QString writtenUnder; ///< the member of a write's "param" that holds what is written; empty: "param" itself
    QString writtenPart; ///< the member of the object that is written to; empty: the object itself
    QJsonObject members; ///< a template
};

/// All of them, from parameters.json: a new one is added there and nowhere else.
const QVector<ParameterObject> &parameterObjects();

/// Draws a device's parameters, by the names of the objects. A template is ordinary JSON in which an object may stand
/// for a choice:
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
