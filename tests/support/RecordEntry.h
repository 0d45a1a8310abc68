#pragma once

#include <QString>

/// An entry of a record as a run writes it.
inline QString entry(const char *serialNumber, const char *ip, const char *message, const char *name,
                     const QString &time = QStringLiteral("2026-03-04 05:06:07"))
{
    return QStringLiteral("%1    %2    %3    %4                %5\n\n")
        .arg(time, QString::fromUtf8(serialNumber), QString::fromUtf8(ip).leftJustified(16), QString::fromUtf8(message),
             QString::fromUtf8(name));
}
