#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVector>

namespace orda_batch {

/// Counted from 1. Of CSV the column is the number of the cell.
struct FilePlace
{
    int line = 1;
    int column = 1;
};

struct FileFault
{
    FilePlace place;
    QString what; ///< and what would be right, for the user
};

/// A key and its value; of CSV, where that says no type, a text.
struct FileCell
{
    FilePlace place;
    QString key;
    QJsonValue value = {};
};

struct FileRow
{
    FilePlace place = {};
    QString device = {}; ///< an id or a serial number; null when it is missing or wrong, which is among the faults
    QVector<FileCell> cells = {}; ///< without empty ones and without those for people
};

/// A file of values as it lies there, before its keys and values are looked up.
struct ValuesFile
{
    bool isCsv = false;
    bool isByDevice = false; ///< else there is one row, for all devices
    QVector<FileCell> head; ///< the columns of CSV that are keys
    QVector<FileRow> rows;
    QVector<FileFault> faults;
};

// The names of what is no key.
bool isDeviceName(const QString &name); ///< "device"
bool isForPeople(const QString &name); ///< what is read out beside the device, so that people know it

/// CSV in UTF-8 with "," or ";" between its cells, and a head line.
ValuesFile readCsvValues(const QByteArray &content);
/// A JSON object, or several one after the other.
ValuesFile readJsonValues(const QByteArray &content);
/// Whichever of the two it is. @param path whose suffix decides where the content does not
ValuesFile readValuesFile(const QString &path, const QByteArray &content);

} // namespace orda_batch
