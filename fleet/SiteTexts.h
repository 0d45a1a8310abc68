#pragma once

#include <QRandomGenerator>
#include <QString>

#include <array>

namespace device_fleet {

template <std::size_t n>
QString oneOf(QRandomGenerator &random, const std::array<const char *, n> &texts)
{
    return QString::fromUtf8(texts.at(std::size_t(random.bounded(int(n)))));
}

// What devices of all kinds draw. Each draws as often from the generator as it always has: the devices of a seed depend
// on it.
QString drawName(QRandomGenerator &random); ///< of a device; now and then empty
QString drawStrongPassword(QRandomGenerator &random); ///< twelve characters of four classes

/// By number and not drawn: the rest of a device stays what a seed has always given.
QString groupOf(int index);

/// An address of device number @p index, 250 devices to a subnet: none ends in 0 or 255.
/// @param firstNetwork such as "127.10.0.0"
quint32 ownAddress(const char *firstNetwork, int index);

} // namespace device_fleet
