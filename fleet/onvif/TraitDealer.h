#pragma once

#include "fleet/onvif/CameraState.h"

namespace device_fleet {

/// What is dealt out; the number is part of the seed of its order.
enum class Trait : quint32
{
    Media,
    Streams,
    Sources,
    Osd,
    Imaging,
    Audio,
    Clock,
    SignOn,
    Style,
    Paths,
    Transport,
    FaultStatus,
    Vendor,
    Credentials,
    Serial,
    HiddenServices,
    Tokens,
    Rotation
};

/// Deals out the kinds of each trait to the cameras of a seed.
class Dealer
{
public:
    Dealer(quint32 seed, int index)
        : m_seed(seed)
        , m_index(index)
    {
    }

    /// From 0 to @p kinds - 1.
    int deal(Trait trait, int kinds) const;
    /// True for one of @p kinds.
    bool isOneOf(Trait trait, int kinds) const { return deal(trait, kinds) == 0; }

private:
    quint32 m_seed;
    int m_index;
};

CameraTraits dealTraits(const Dealer &dealer);
/// The paths of the services by their namespaces.
QMap<QString, QString> dealPaths(const Dealer &dealer, bool hasMedia2, bool hasImaging);

} // namespace device_fleet
