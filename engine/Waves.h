#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

namespace orda_engine {

/// Sizes of the waves in which a run goes over its devices: "1, 10, 25%" is one device, then ten, then a quarter of all
/// at a time until none is left.
class Waves
{
    Q_DECLARE_TR_FUNCTIONS(orda_engine::Waves)

public:
    /// All devices at once.
    Waves() = default;
    /// @param text numbers and per cents of all devices, joined by commas; the last one goes on
    /// @param error what is wrong with it, for the user; empty when it is right
    static Waves parse(const QString &text, QString *error);

    /// How many devices the wave with this number has, the first being 0. @param left how many are left, at least one
    int sizeOf(int wave, int allDevices, int left) const;

private:
    struct Size
    {
        int number;
        bool isPercent;
    };

    QVector<Size> m_sizes;
};

} // namespace orda_engine
