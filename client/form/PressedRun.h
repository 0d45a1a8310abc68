#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace orda_client {

/// What a press on Configure starts: the values of a family, and the devices that they are written to.
struct PressedRun
{
    QString family; ///< CfgFamily::name
    QJsonObject values; ///< as devices read them
    QStringList devIds; ///< in the order of the form's list

    bool operator==(const PressedRun &other) const
    {
        return family == other.family && values == other.values && devIds == other.devIds;
    }
};

} // namespace orda_client

Q_DECLARE_METATYPE(orda_client::PressedRun)
