#include <vms_client_sdk/CheckedJson.h>

#include <vms_client_sdk/ForeignText.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace vms_sdk {

CheckedEntry::CheckedEntry(QString name, QJsonObject fields)
    : m_name(std::move(name))
    , m_fields(std::move(fields))
{
}

QJsonValue CheckedEntry::value(const QString &key)
{
    m_knownKeys.insert(key);
    return m_fields.value(key);
}

QString CheckedEntry::text(const QString &key, const QString &absent)
{
    const QJsonValue read = value(key);
    if (read.isUndefined())
        return absent;
    if (!read.isString())
        fail(key, tr("must be a text in quotes"));
    return read.toString();
}

int CheckedEntry::wholeNumber(const QString &key, int min, int max, int absent)
{
    const QJsonValue read = value(key);
    if (read.isUndefined())
        return absent;
    const double number = read.toDouble(NAN);
    if (number >= min && number <= max && std::floor(number) == number)
        return int(number);
    fail(key, tr("must be a whole number from %1 to %2").arg(min).arg(max));
    return absent;
}

bool CheckedEntry::flag(const QString &key, bool absent)
{
    const QJsonValue read = value(key);
    if (!read.isUndefined() && !read.isBool())
        fail(key, tr("must be true or false"));
    return read.toBool(absent);
}

int CheckedEntry::choice(const QString &key, const QStringList &choices, int absent)
{
    const QJsonValue read = value(key);
    const int index = read.isUndefined() ? absent : choices.indexOf(read.toString());
    if (index < 0)
        fail(key, tr("must be one of %1").arg(choices.join(QStringLiteral(", "))));
    return index;
}

void CheckedEntry::fail(const QString &key, const QString &whatIsRight)
{
    if (!hasFault(key))
        m_faults.append({key, whatIsRight});
}

bool CheckedEntry::hasFault(const QString &key) const
{
    return std::any_of(m_faults.cbegin(), m_faults.cend(), [&key](const Fault &fault) { return fault.key == key; });
}

QString CheckedEntry::fault() const
{
    if (m_faults.isEmpty())
        return {};
    return tr("field \"%1\": %2").arg(m_faults.constFirst().key, m_faults.constFirst().whatIsRight);
}

QStringList CheckedEntry::unknownKeys() const
{
    QStringList unknown = m_fields.keys();
    unknown.erase(std::remove_if(unknown.begin(), unknown.end(),
                                 [this](const QString &key) { return m_knownKeys.contains(key); }),
                  unknown.end());
    return unknown;
}

CheckedFile::CheckedFile(QString path, QString listKey)
    : m_path(std::move(path))
    , m_listKey(std::move(listKey))
{
}

void CheckedFile::fail(const QString &what)
{
    if (m_error.isEmpty())
        m_error = escaped(tr("%1: %2").arg(m_path, what));
}

void CheckedFile::warn(const QString &what)
{
    m_warnings.append(escaped(tr("%1: %2").arg(m_path, what)));
}

QJsonObject CheckedFile::readRoot()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(tr("cannot be read: %1").arg(file.errorString()));
        return {};
    }
    m_permissions = file.permissions();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError)
        fail(tr("is not JSON: %1 at byte %2").arg(parseError.errorString()).arg(parseError.offset));
    return document.object();
}

void CheckedFile::read(const std::function<void(CheckedEntry &entry)> &readEntry)
{
    CheckedEntry root({}, readRoot());
    const QJsonValue list = root.value(m_listKey);
    const QStringList unused = root.unknownKeys();
    for (const QString &key : unused)
        warn(tr("unknown key \"%1\" is not used").arg(key));
    if (!list.isArray()) {
        root.fail(m_listKey, tr("must be a list of objects"));
        return fail(root.fault());
    }

    const QJsonArray entries = list.toArray();
    for (int i = 0; i < entries.size(); ++i) {
        CheckedEntry entry(QStringLiteral("%1[%2]").arg(m_listKey).arg(i), entries.at(i).toObject());
        if (!entries.at(i).isObject())
            return fail(tr("%1: must be an object").arg(entry.name()));
        readEntry(entry);
        if (!entry.fault().isEmpty())
            return fail(tr("%1: %2").arg(entry.name(), entry.fault()));
        const QStringList unknown = entry.unknownKeys();
        for (const QString &key : unknown)
            warn(tr("%1: unknown key \"%2\" is not used").arg(entry.name(), key));
    }
}

} // namespace vms_sdk
