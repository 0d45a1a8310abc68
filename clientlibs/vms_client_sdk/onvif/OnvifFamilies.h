#pragma once

#include <vms_client_sdk/onvif/KeyMap.h>
#include <vms_client_sdk/onvif/OnvifFamily.h>

#include <QString>

#include <memory>

namespace vms_sdk {

/// What a family's operations are addressed to.
enum class FamilyReach
{
    Nothing, ///< the standard has no counterpart for its keys; its requests succeed with nothing
    Device, ///< the camera itself: one operation to read, one to write, no options
    Configurations, ///< of one of the media services, by their tokens
    VideoSource, ///< the imaging settings of the first video source
    ScreenTexts ///< made and deleted: code of its own
};

/// A family's methods as operations and elements of the standard. Plain data; names are the standard's.
struct FamilyTable
{
    const char *readMethod;
    const char *writeMethod;
    const char *attribute; ///< the member of a write's "param" that has the values; empty: "param" itself
    const char *list; ///< of objects, one for each configuration; empty: the first configuration alone
    FamilyReach reach;
    const char *kind; ///< of configurations in profiles; empty: profiles don't matter
    const char *getOperation;
    const char *part; ///< of its answer: what is written back whole
    const char *optionsOperation;
    const char *optionsPart; ///< of its answer
    const char *setOperation;
    const char *setPart; ///< of its request
    const KeyRow *keys; ///< null: none
};

/// The table of a method, be it the read or the write; null for methods that the standard has no counterpart for.
const FamilyTable *familyOf(const QString &method);

/// The family of a request at a camera; null when the camera lacks a service that it needs.
std::unique_ptr<OnvifFamily> makeFamily(const FamilyTable &table, const CameraCalls &calls);

} // namespace vms_sdk
