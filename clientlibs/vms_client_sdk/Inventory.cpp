#include <vms_client_sdk/Inventory.h>

#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/ForeignText.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QSet>
#include <cmath>

namespace vms_sdk {

namespace {

/// Takes one entry apart. The first fault stays; what is read after it is of no use.
class EntryReader
{
    Q_DECLARE_TR_FUNCTIONS(Inventory)

public:
    explicit EntryReader(QJsonObject entry)
        : m_entry(std::move(entry))
    {
    }

    DevInfo read();
    QString fault() const { return m_fault; }
    QStringList unknownKeys() const;

private:
    QString text(const QString &key, const QString &absent = {});
    QString printableText(const QString &key);
    QString visibleText(const QString &key, const QString &absent = {});
    int number(const QString &key, int min, int max, int absent);
    bool flag(const QString &key);
    QString ipText();
    QString fingerprint();
    void checkAddress(const DevInfo &device);

    QJsonValue take(const QString &key);
    void fail(const QString &key, const QString &whatIsRight);

    QJsonObject m_entry;
    QSet<QString> m_knownKeys;
    QString m_fault;
};

QJsonValue EntryReader::take(const QString &key)
{
    m_knownKeys.insert(key);
    return m_entry.value(key);
}

void EntryReader::fail(const QString &key, const QString &whatIsRight)
{
    if (m_fault.isEmpty())
        m_fault = tr("field \"%1\": %2").arg(key, whatIsRight);
}

QString EntryReader::text(const QString &key, const QString &absent)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return absent;
    if (!value.isString())
        fail(key, tr("must be a text in quotes"));
    return value.toString();
}

/// For what goes into lists and record files, a line or a cell each.
QString EntryReader::printableText(const QString &key)
{
    QString value = text(key);
    if (holdsControls(value))
        fail(key, tr("must not hold line breaks, tabs or control characters"));
    return value;
}

/// For what tells devices apart: a character that nobody sees must not make two of one.
QString EntryReader::visibleText(const QString &key, const QString &absent)
{
    QString value = text(key, absent);
    if (holdsInvisible(value))
        fail(key, tr("must not hold line breaks, tabs, control characters or characters that cannot be seen"));
    return value;
}

int EntryReader::number(const QString &key, int min, int max, int absent)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return absent;
    const double read = value.toDouble(NAN);
    if (!(read >= min && read <= max && std::floor(read) == read)) {
        fail(key, tr("must be a whole number from %1 to %2").arg(min).arg(max));
        return absent;
    }
    return int(read);
}

bool EntryReader::flag(const QString &key)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isBool())
        fail(key, tr("must be true or false"));
    return value.toBool();
}

QString EntryReader::ipText()
{
    const QString key = QStringLiteral("ip");
    QString ip = visibleText(key);
    // Back to text and compared: "10.1" and "010.0.0.1" are addresses too, but not the ones that people take them for.
    if (!ip.isEmpty()
        && (QHostAddress(ip).protocol() != QAbstractSocket::IPv4Protocol || QHostAddress(ip).toString() != ip))
        fail(key, tr("must be an IPv4 address such as 192.168.1.20, or empty where \"url\" is given"));
    return ip;
}

QString EntryReader::fingerprint()
{
    const QString key = QStringLiteral("fingerprint");
    const QString value = text(key);
    const QByteArray sha256 = sha256FromText(value);
    if (sha256.isEmpty() && !value.isEmpty())
        fail(key, tr("must be a SHA-256: 64 hexadecimal digits, with or without colons"));
    return QString::fromLatin1(sha256.toHex());
}

DevInfo EntryReader::read()
{
    DevInfo device;
    device.id = visibleText(QStringLiteral("id"));
    if (device.id.isEmpty())
        fail(QStringLiteral("id"), tr("must be there and not be empty"));
    device.name = printableText(QStringLiteral("name"));
    device.serialNumber = visibleText(QStringLiteral("serialNumber"));
    device.ip = ipText();
    device.ipNumber = QHostAddress(device.ip).toIPv4Address();
    device.port = quint16(number(QStringLiteral("port"), 1, 65535, 0));
    device.path = visibleText(QStringLiteral("path"), device.path);
    device.tls = flag(QStringLiteral("tls"));
    device.url = visibleText(QStringLiteral("url"));
    device.fingerprint = fingerprint();
    device.userName = text(QStringLiteral("userName"));
    device.password = text(QStringLiteral("password"));
    device.accessCode = number(QStringLiteral("accessCode"), 0, 65535, 1);
    device.kindCode = number(QStringLiteral("kindCode"), 0, 65535, 1);
    checkAddress(device);
    return device;
}

void EntryReader::checkAddress(const DevInfo &device)
{
    const QUrl url = deviceUrl(device);
    const bool secure = url.scheme() == QLatin1String("wss");
    if (!device.url.isEmpty()) {
        const bool wellFormed =
            url.isValid() && !url.host().isEmpty() && (secure || url.scheme() == QLatin1String("ws"));
        if (!wellFormed)
            fail(QStringLiteral("url"), tr("must be an address such as wss://relay.example:443/camera-1"));
        else if (device.tls && !secure)
            fail(QStringLiteral("tls"), tr("must not be true beside a \"url\" that begins with ws:"));
    } else {
        if (device.ip.isEmpty())
            fail(QStringLiteral("ip"), tr("must be an IPv4 address where no \"url\" is given"));
        if (device.port == 0)
            fail(QStringLiteral("port"), tr("must be a whole number from 1 to 65535 where no \"url\" is given"));
        if (!device.path.startsWith(QLatin1Char('/')) || !url.isValid())
            fail(QStringLiteral("path"), tr("must be the path of an address and begin with \"/\""));
    }
    if (!device.fingerprint.isEmpty() && !secure)
        fail(QStringLiteral("fingerprint"), tr("has no use without TLS: set tls to true or give a wss: url"));
}

QStringList EntryReader::unknownKeys() const
{
    QStringList unknown = m_entry.keys();
    unknown.erase(std::remove_if(unknown.begin(), unknown.end(),
                                 [this](const QString &key) { return m_knownKeys.contains(key); }),
                  unknown.end());
    return unknown;
}

/// Takes the file apart, entry by entry.
class InventoryReader
{
    Q_DECLARE_TR_FUNCTIONS(Inventory)

public:
    explicit InventoryReader(QString path)
        : m_path(std::move(path))
    {
    }

    Inventory read();

private:
    bool readEntries(const QJsonObject &root);
    bool readEntry(int index, const QJsonValue &value);
    bool isFirst(const QString &field, const QString &value, const QString &where);
    bool fail(const QString &what);
    void warn(const QString &what);

    QString m_path;
    Inventory m_inventory;
    QHash<QString, QString> m_entryOf; ///< by field and value, of the fields that no two entries may share
};

bool InventoryReader::fail(const QString &what)
{
    m_inventory = {{}, {}, escaped(tr("%1: %2").arg(m_path, what))};
    return false;
}

void InventoryReader::warn(const QString &what)
{
    m_inventory.warnings.append(escaped(tr("%1: %2").arg(m_path, what)));
}

Inventory InventoryReader::read()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(tr("cannot be read: %1").arg(file.errorString()));
        return m_inventory;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        fail(tr("is not JSON: %1 at byte %2").arg(parseError.errorString()).arg(parseError.offset));
        return m_inventory;
    }
    if (!readEntries(document.object()))
        return m_inventory;

    const auto holdsPassword = [](const DevInfo &device) { return !device.password.isEmpty(); };
    const bool secret = std::any_of(m_inventory.devices.cbegin(), m_inventory.devices.cend(), holdsPassword);
    const QFile::Permissions ofOthers = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup
                                      | QFile::WriteOther; // who may write names other devices
    if (secret && (file.permissions() & ofOthers))
        fail(tr("holds passwords and may be read or changed by others; set its mode to 0600 (chmod 600)"));
    return m_inventory;
}

bool InventoryReader::readEntries(const QJsonObject &root)
{
    const QString listKey = QStringLiteral("devices");
    if (!root.value(listKey).isArray())
        return fail(tr("must be an object with a list \"devices\""));
    const QStringList keys = root.keys();
    for (const QString &key : keys)
        if (key != listKey)
            warn(tr("unknown key \"%1\" is not used").arg(key));
    const QJsonArray entries = root.value(listKey).toArray();
    for (int i = 0; i < entries.size(); ++i)
        if (!readEntry(i, entries.at(i)))
            return false;
    return true;
}

bool InventoryReader::isFirst(const QString &field, const QString &value, const QString &where)
{
    QString &entry = m_entryOf[field + QLatin1Char(' ') + value];
    if (!entry.isEmpty() && !value.isEmpty())
        return fail(tr("%1: field \"%2\": must not be the same as in %3").arg(where, field, entry));
    entry = where;
    return true;
}

bool InventoryReader::readEntry(int index, const QJsonValue &value)
{
    EntryReader entry(value.toObject());
    const DevInfo device = entry.read();
    const QString where = tr("devices[%1] (id \"%2\")").arg(index).arg(device.id);
    if (!value.isObject())
        return fail(tr("%1: must be an object").arg(where));
    if (!entry.fault().isEmpty())
        return fail(tr("%1: %2").arg(where, entry.fault()));
    const QString address = device.url.isEmpty() ? QStringLiteral("ip") : QStringLiteral("url");
    if (!isFirst(QStringLiteral("id"), device.id, where)
        || !isFirst(QStringLiteral("serialNumber"), device.serialNumber, where)
        || !isFirst(address, deviceUrl(device).toString(), where))
        return false;

    const QStringList unknownKeys = entry.unknownKeys();
    for (const QString &key : unknownKeys)
        warn(tr("%1: unknown key \"%2\" is not used").arg(where, key));
    m_inventory.devices.append(device);
    return true;
}

QJsonObject toJson(const DevInfo &device)
{
    QJsonObject entry{{QStringLiteral("id"), device.id},
                      {QStringLiteral("name"), device.name},
                      {QStringLiteral("serialNumber"), device.serialNumber},
                      {QStringLiteral("ip"), device.ip},
                      {QStringLiteral("path"), device.path},
                      {QStringLiteral("tls"), device.tls},
                      {QStringLiteral("userName"), device.userName},
                      {QStringLiteral("password"), device.password},
                      {QStringLiteral("accessCode"), device.accessCode},
                      {QStringLiteral("kindCode"), device.kindCode}};
    if (device.port != 0)
        entry.insert(QStringLiteral("port"), device.port);
    if (!device.url.isEmpty())
        entry.insert(QStringLiteral("url"), device.url);
    if (!device.fingerprint.isEmpty())
        entry.insert(QStringLiteral("fingerprint"), device.fingerprint);
    return entry;
}

} // namespace

Inventory readInventory(const QString &path)
{
    return InventoryReader(path).read();
}

QJsonObject inventoryToJson(const QList<DevInfo> &devices)
{
    QJsonArray entries;
    for (const DevInfo &device : devices)
        entries.append(toJson(device));
    return {{QStringLiteral("devices"), entries}};
}

QString writeInventory(const QString &path, const QList<DevInfo> &devices)
{
    QSaveFile file(path);
    const QByteArray content = QJsonDocument(inventoryToJson(devices)).toJson();
    // The mode before the first byte of content.
    const bool written = file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
                      && file.write(content) == content.size() && file.commit();
    return written
             ? QString()
             : QCoreApplication::translate("Inventory", "%1: cannot be written: %2").arg(path, file.errorString());
}

} // namespace vms_sdk
