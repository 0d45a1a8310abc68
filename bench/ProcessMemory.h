#pragma once

#include <QFile>

/// One line of /proc/self/status, in KiB: "VmRSS" is the memory that the process has, "VmHWM" the most that it has had.
inline int processMemoryKiB(const char *field)
{
    QFile file(QStringLiteral("/proc/self/status"));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith(QByteArray(field) + ':'))
            return line.simplified().split(' ').value(1).toInt();
    return 0;
}
