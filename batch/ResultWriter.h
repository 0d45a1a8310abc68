#pragma once

#include "batch/BatchOptions.h"
#include "batch/DeviceResult.h"

#include <vms_client_sdk/DevInfo.h>

namespace orda_batch {

class OutputThread;

/// Writes what came of the devices, as it comes, to standard output: a table, CSV, or JSON lines (docs/batch.md), all
/// in UTF-8.
class ResultWriter
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::ResultWriter)

public:
    /// @param hasColors of tables: failures are red
    ResultWriter(OutputThread *output, Format format, bool hasColors);

    /// Writes the head. @param devices those that will come, for the widths of columns
    /// @param runId of all lines; empty: null in JSON
    /// @param valueColumns members that a reading shows in tables and CSV; empty: the table has messages and changes
    void begin(const QList<vms_sdk::DevInfo> &devices, const QString &runId, const QStringList &valueColumns = {});
    void add(const DeviceResult &result);
    /// The summary is in JSON the last line; in the other formats it goes to the standard error output.
    void end(const Summary &summary);

private:
    struct Failure
    {
        int count = 0;
        QStringList devIds = {}; // the first few
    };

    struct Row
    {
        QStringList cells;
        const char *color; // what a terminal takes for it; empty: none
    };

    static QJsonValue runOf(const QString &runId);
    QJsonObject jsonOf(const DeviceResult &result) const;
    QJsonObject jsonOf(const Summary &summary) const;
    QString csvText(const QString &text) const;
    void writeCsv(const QStringList &cells);
    QStringList csvCells(const DeviceResult &result) const;
    void beginTable(const QList<vms_sdk::DevInfo> &devices);
    static QString withLacking(const QString &text, const DeviceResult &result);
    QStringList tableCells(const DeviceResult &result) const;
    void addRow(const QStringList &cells, const char *color = "");
    void writeRow(const Row &row);
    QStringList summaryLines(const Summary &summary) const;
    QStringList failureLines() const;

    OutputThread *m_output;
    Format m_format;
    bool m_hasColors;
    QString m_runId;
    QStringList m_valueColumns;
    QVector<int> m_widths; // of the table's columns
    QVector<Row> m_rows; // of a reading's table, until its end
    QMap<QString, Failure> m_failures; // by message
};

} // namespace orda_batch
