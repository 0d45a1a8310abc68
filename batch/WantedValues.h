#pragma once

#include "batch/ValuesFile.h"

#include <vms_client_sdk/DevInfo.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

namespace orda_batch {

class KeyTable;

/// What is to be set: one object for all devices, or an object for each that is named.
struct WantedValues
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::WantedValues)

public:
    /// @param settings KEY=VALUE each
    static WantedValues fromSettings(const QStringList &settings, const KeyTable &keys);
    /// Reads a file: JSON (one object for all devices), CSV with a head line, or JSON lines. The last two have a column
    /// or member "device", an id or a serial number; columns "serialNumber", "name", "ip", "outcome" and "message", as
    /// a reading of this program has them, are for people and are passed over, and so are empty cells.
    /// @param path of at most 64 MiB, UTF-8
    static WantedValues fromFile(const QString &path, const KeyTable &keys);

    /// Gives the values of a file to the devices that it names, each once, and notes what it names wrongly.
    /// @param inventory all that may be named
    void assignTo(const QList<vms_sdk::DevInfo> &inventory);

    bool isByDevice() const { return m_isByDevice; }
    /// By device id; after assignTo(). In the order of the inventory.
    const QStringList &devIds() const { return m_devIds; }
    const QHash<QString, QJsonObject> &ownValues() const { return m_ownValues; }
    /// Of all devices, as the family's tasks take them.
    const QJsonObject &values() const { return m_values; }

    /// Rows of CSV that name a device and give it no value: the file does not mean these devices.
    int rowsWithoutValues() const { return m_rowsWithoutValues; }

    /// All that is wrong, a printable line each, with file, line, column and what would be right: "names.csv:12:3: …",
    /// in their order. Nothing may be sent then.
    QStringList errors;

private:
    struct Row
    {
        QString device; ///< as the file names it
        FilePlace place;
        QJsonObject values;
    };

    void take(const ValuesFile &file, const KeyTable &keys);
    QJsonObject takeRow(const FileRow &row, const KeyTable &keys, const QSet<QString> &wrongKeys, bool isCsv);
    void complain(FilePlace place, const QString &what) { m_faults.append({place, what}); }
    void listFaults();
    QString at(FilePlace place) const;

    QString m_path;
    QVector<FileFault> m_faults;
    QJsonObject m_values;
    QVector<Row> m_rows;
    bool m_isByDevice = false;
    int m_rowsWithoutValues = 0;
    QStringList m_devIds;
    QHash<QString, QJsonObject> m_ownValues;
};

} // namespace orda_batch
