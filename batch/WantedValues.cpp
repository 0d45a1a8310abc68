#include "batch/WantedValues.h"

#include "batch/DeviceIndex.h"
#include "batch/InputFile.h"
#include "batch/KeyTable.h"
#include "engine/ChangeTexts.h"

#include <vms_client_sdk/ForeignText.h>

#include <algorithm>
#include <tuple>

namespace orda_batch {

namespace {

constexpr qint64 maxFileBytes = 64 << 20; // 10,000 devices with a hundred values each have a tenth of it

/// For messages, which need not have all of it.
QString shortText(const QJsonValue &value)
{
    constexpr int maxShown = 40;
    const QString text = orda_engine::plainTextOf(value);
    return text.size() > maxShown ? text.left(maxShown) + QChar(0x2026) : text;
}

} // namespace

WantedValues WantedValues::fromSettings(const QStringList &settings, const KeyTable &keys)
{
    WantedValues wanted;
    QJsonObject byName;
    const auto complain = [&wanted](const QString &setting, const QString &what) {
        wanted.errors.append(vms_sdk::escaped(QStringLiteral("--set %1: %2").arg(setting, what)));
    };
    for (const QString &setting : settings) {
        const int equals = setting.indexOf(QLatin1Char('='));
        const QString name = setting.left(equals);
        QString fault;
        if (equals < 0)
            fault = tr("KEY=VALUE is expected");
        else if (byName.contains(name))
            fault = tr(R"("%1" is given twice)").arg(name);
        else
            fault = keys.faultOfKey(name);
        if (fault.isEmpty()) {
            const QJsonValue value = keys.fromText(name, setting.mid(equals + 1), &fault);
            byName.insert(name, fault.isEmpty() ? value : QJsonValue());
        }
        if (!fault.isEmpty())
            complain(setting, fault);
    }
    const QString together = keys.faultTogether(byName);
    if (!together.isEmpty())
        wanted.errors.append(QStringLiteral("--set: %1").arg(together));
    wanted.m_values = keys.toValues(byName);
    return wanted;
}

WantedValues WantedValues::fromFile(const QString &path, const KeyTable &keys)
{
    WantedValues wanted;
    wanted.m_path = path;
    QByteArray content;
    const QString why = readInputFile(path, maxFileBytes, &content);
    if (why.isEmpty())
        wanted.take(readValuesFile(path, content), keys);
    else
        wanted.errors.append(vms_sdk::escaped(QStringLiteral("%1: %2").arg(path, why)));
    return wanted;
}

void WantedValues::take(const ValuesFile &file, const KeyTable &keys)
{
    m_isByDevice = file.isByDevice;
    m_faults = file.faults;
    QSet<QString> wrongKeys;
    for (const FileCell &cell : file.head) {
        const QString fault = keys.faultOfKey(cell.key);
        if (fault.isEmpty())
            continue;
        complain(cell.place, fault);
        wrongKeys.insert(cell.key);
    }
    for (const FileRow &row : file.rows) {
        if (file.isCsv && row.cells.isEmpty()) { // of a device that was not reached when the file was read out
            ++m_rowsWithoutValues;
            continue;
        }
        const QJsonObject values = keys.toValues(takeRow(row, keys, wrongKeys, file.isCsv));
        if (!file.isByDevice)
            m_values = values;
        else if (!row.device.isNull())
            m_rows.append({row.device, row.place, values});
    }
    if (m_rowsWithoutValues > 0 && m_rowsWithoutValues == file.rows.size())
        complain(file.rows.constFirst().place, tr("no row gives a value"));
    listFaults();
}

QJsonObject WantedValues::takeRow(const FileRow &row, const KeyTable &keys, const QSet<QString> &wrongKeys, bool isCsv)
{
    QJsonObject byName;
    for (const FileCell &cell : row.cells) {
        QString fault = isCsv ? QString() : keys.faultOfKey(cell.key);
        if (!fault.isEmpty())
            complain(cell.place, fault);
        if (!fault.isEmpty() || wrongKeys.contains(cell.key))
            continue;
        QJsonValue value = cell.value;
        if (isCsv)
            value = keys.fromText(cell.key, cell.value.toString(), &fault);
        else
            fault = keys.faultOf(cell.key, cell.value);
        if (!fault.isEmpty())
            complain(cell.place, tr(R"("%1" (%2): %3)").arg(cell.key, shortText(cell.value), fault));
        byName.insert(cell.key, fault.isEmpty() ? value : QJsonValue());
    }
    const QString together = keys.faultTogether(byName);
    if (!together.isEmpty())
        complain(row.place, together);
    if (row.cells.isEmpty())
        complain(row.place, tr("no value is given"));
    return byName;
}

void WantedValues::assignTo(const QList<vms_sdk::DevInfo> &inventory)
{
    if (!m_isByDevice)
        return;
    const DeviceIndex index(inventory);
    QHash<int, FilePlace> named;
    for (const Row &row : qAsConst(m_rows)) {
        const QVector<int> found = index.find(row.device);
        if (found.isEmpty()) {
            complain(row.place, tr(R"("%1": no device has this id or serial number)").arg(row.device));
        } else if (found.size() > 1) {
            complain(row.place, tr(R"("%1" is the id of one device and the serial number of "%2")")
                                    .arg(row.device, inventory.at(found.last()).id));
        } else if (named.contains(found.first())) {
            complain(row.place, tr(R"("%1" is named already at %2)").arg(row.device, at(named.value(found.first()))));
        } else {
            named.insert(found.first(), row.place);
            m_ownValues.insert(inventory.at(found.first()).id, row.values);
        }
    }
    for (const vms_sdk::DevInfo &device : inventory)
        if (m_ownValues.contains(device.id))
            m_devIds.append(device.id);
    listFaults();
}

QString WantedValues::at(FilePlace place) const
{
    return QStringLiteral("%1:%2:%3").arg(m_path).arg(place.line).arg(place.column);
}

void WantedValues::listFaults()
{
    if (m_faults.isEmpty())
        return; // what could not be read has an error without a place
    std::stable_sort(m_faults.begin(), m_faults.end(), [](const FileFault &a, const FileFault &b) {
        return std::tie(a.place.line, a.place.column) < std::tie(b.place.line, b.place.column);
    });
    errors.clear();
    for (const FileFault &fault : qAsConst(m_faults))
        errors.append(vms_sdk::escaped(QStringLiteral("%1: %2").arg(at(fault.place), fault.what)));
}

} // namespace orda_batch
