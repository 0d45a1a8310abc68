#include "fleet/FaultPlanReader.h"

#include "fleet/SimulatedDevice.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace device_fleet {

namespace {

// In the order of the enumerations.
const QStringList &faultNameList()
{
    static const QStringList names{
        QStringLiteral("error-code"),      QStringLiteral("garbage"),        QStringLiteral("no-answer"),
        QStringLiteral("late-answer"),     QStringLiteral("answer-twice"),   QStringLiteral("foreign-id"),
        QStringLiteral("foreign-method"),  QStringLiteral("no-result"),      QStringLiteral("huge-answer"),
        QStringLiteral("drop-connection"), QStringLiteral("drop-and-return")};
    return names;
}

const QStringList &returnNameList()
{
    static const QStringList names{QStringLiteral("new-settings"), QStringLiteral("old-settings"),
                                   QStringLiteral("missing-member")};
    return names;
}

} // namespace

FaultPlanReader::FaultPlanReader(const QString &path)
    : m_path(path)
{
}

QStringList FaultPlanReader::faultNames()
{
    return faultNameList();
}

FaultPlan FaultPlanReader::read()
{
    const QJsonObject root = readFile();
    const QString listKey = QStringLiteral("faults");
    if (m_error.isEmpty() && !root.value(listKey).isArray())
        fail(listKey, tr("must be a list of objects"));
    warnOfUnknownKeys(root, {listKey});

    FaultPlan plan;
    const QJsonArray entries = root.value(listKey).toArray();
    for (int i = 0; i < entries.size() && m_error.isEmpty(); ++i) {
        m_where = QStringLiteral("faults[%1]").arg(i);
        if (entries.at(i).isObject())
            readEntry(entries.at(i).toObject(), plan);
        else
            m_error = tr("%1: %2: must be an object").arg(m_path, m_where);
    }
    return m_error.isEmpty() ? plan : FaultPlan();
}

QJsonObject FaultPlanReader::readFile()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = tr("%1: cannot be read: %2").arg(m_path, file.errorString());
        return {};
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError)
        m_error = tr("%1: is not JSON: %2 at byte %3").arg(m_path, parseError.errorString()).arg(parseError.offset);
    return document.object();
}

void FaultPlanReader::readEntry(const QJsonObject &entry, FaultPlan &plan)
{
    const QStringList devices = names(entry, QStringLiteral("devices"));
    const QStringList methods = names(entry, QStringLiteral("methods"));
    const QStringList known = SimulatedDevice::methods();
    for (const QString &method : methods) {
        if (method != FaultPlan::any() && !known.contains(method))
            fail(QStringLiteral("methods"),
                 tr(R"("%1" is none of "*", %2)").arg(method, known.join(QStringLiteral(", "))));
    }

    FaultRule rule;
    const QString fault = choice(entry, QStringLiteral("fault"), faultNameList(), {});
    const QString settings =
        choice(entry, QStringLiteral("returnWith"), returnNameList(), returnNameList().constFirst());
    rule.errorCode = number(entry, QStringLiteral("errorcode"), std::numeric_limits<int>::min(), rule.errorCode);
    rule.delay = std::chrono::milliseconds(number(entry, QStringLiteral("delayMs"), 0, int(rule.delay.count())));
    if (rule.errorCode == 0)
        fail(QStringLiteral("errorcode"), tr("must not be 0, which means success"));
    if (!m_error.isEmpty())
        return;

    rule.fault = Fault(faultNameList().indexOf(fault));
    rule.returnWith = ReturnWith(returnNameList().indexOf(settings));
    warnOfUnknownKeys(entry, {QStringLiteral("devices"), QStringLiteral("methods"), QStringLiteral("fault"),
                              QStringLiteral("returnWith"), QStringLiteral("errorcode"), QStringLiteral("delayMs")});
    for (const QString &device : devices)
        for (const QString &method : methods)
            plan.set(device, method, rule);
}

QStringList FaultPlanReader::names(const QJsonObject &entry, const QString &key)
{
    if (!entry.contains(key))
        return {FaultPlan::any()};
    QStringList list;
    const QJsonArray values = entry.value(key).toArray();
    for (const QJsonValue &value : values)
        list.append(value.toString());
    if (list.isEmpty() || list.contains(QString()))
        fail(key, tr("must be a list of names, or of \"*\" for all"));
    return list;
}

QString FaultPlanReader::choice(const QJsonObject &entry, const QString &key, const QStringList &choices,
                                const QString &otherwise)
{
    QString value = entry.contains(key) ? entry.value(key).toString() : otherwise;
    if (!choices.contains(value))
        fail(key, tr("must be one of %1").arg(choices.join(QStringLiteral(", "))));
    return value;
}

int FaultPlanReader::number(const QJsonObject &entry, const QString &key, int min, int otherwise)
{
    if (!entry.contains(key))
        return otherwise;
    const double value = entry.value(key).toDouble(NAN);
    if (value >= min && value <= std::numeric_limits<int>::max() && std::floor(value) == value)
        return int(value);
    fail(key, tr("must be a whole number from %1 to %2").arg(min).arg(std::numeric_limits<int>::max()));
    return otherwise;
}

void FaultPlanReader::warnOfUnknownKeys(const QJsonObject &object, const QStringList &known)
{
    const QString where = m_where.isEmpty() ? m_path : QStringLiteral("%1: %2").arg(m_path, m_where);
    const QStringList keys = object.keys();
    for (const QString &key : keys)
        if (!known.contains(key))
            m_warnings.append(tr("%1: unknown key \"%2\" is not used").arg(where, key));
}

void FaultPlanReader::fail(const QString &field, const QString &whatIsRight)
{
    if (!m_error.isEmpty())
        return; // what comes after the first fault may only be its consequence
    const QString where = m_where.isEmpty() ? m_path : QStringLiteral("%1: %2").arg(m_path, m_where);
    m_error = tr("%1: field \"%2\": %3").arg(where, field, whatIsRight);
}

} // namespace device_fleet
