#pragma once

#include <vms_client_sdk/onvif/KeyLimit.h>

#include <QJsonValue>

namespace vms_sdk {

/// How a camera's text and a value of ours are turned into each other.
enum class KeyForm
{
    Number, ///< the same number. Fractions are set only where the camera lists them
    Share, ///< a whole number from 0 to 100: where in its range the number stands
    WholeShare, ///< the same; the camera takes whole numbers only, so that the nearest one is set
    KiloHertz, ///< ours in Hz
    Word, ///< in lower case, but for KeyWords; to be set it must be in the camera's list
    Encoding, ///< the same; the list are the encodings that there are options for
    Flag, ///< by KeyWords, ours a number
    ConstantRate, ///< "cbr" or "vbr"; the limit tells whether there is a choice
    Rotation ///< an element with a mode and degrees: "off", "both" (half a turn), "auto", "rotate90"
};

/// A camera's word and ours. A list ends with a pair without words; to be set, the first that fits is taken.
struct KeyWords
{
    const char *camera;
    const char *ours;
};

/// A key of a family: where its value stands in a configuration, and what limits it. Plain data. A list ends with a row
/// without a key.
struct KeyRow
{
    const char *key;
    /// As XmlPath.h has it; "|" between alternatives, of which the first that is there counts. "$" stands for the
    /// configuration's encoding.
    const char *path;
    const char *limits = ""; ///< for KeyOptions::limitAt(); empty: none
    const KeyWords *words = nullptr;
    KeyForm form = KeyForm::Number;
    bool isFitted = false; ///< a new encoding may change it unasked, where it does not allow the present value
};

/// What a configuration holds; undefined when it has no such value, or one that makes no sense.
QJsonValue valueOf(const KeyRow &row, const XmlElement &configuration, const KeyOptions &options);

/// Sets what valueOf() would read.
/// @return why the camera would not allow it, printable; empty when it was set
QString setValue(const KeyRow &row, const QJsonValue &wanted, const KeyOptions &options, XmlElement *configuration);

/// Makes the value one that the options allow, as near to the present one as can be.
void fitValue(const KeyRow &row, const KeyOptions &options, XmlElement *configuration);

/// "the device allows 64 to 8192", with the key and the value before it.
QString notAllowed(const QString &key, const QJsonValue &wanted, const QString &allowed);

} // namespace vms_sdk
