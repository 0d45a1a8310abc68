#include <vms_client_sdk/Inventory.h>

#include <vms_client_sdk/CheckedJson.h>
#include <vms_client_sdk/DeviceProtocol.h>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/InventoryEntries.h>
#include <vms_client_sdk/WholeFile.h>

#include <QCoreApplication>
#include <QHash>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace vms_sdk {

namespace {

// Of ONVIF devices: what nearly all of them use.
constexpr char onvifPath[] = "/onvif/device_service";
constexpr quint16 httpPort = 80;
constexpr quint16 httpsPort = 443;

QString textOf(DevProtocol protocol)
{
    return protocol == DevProtocol::Onvif ? QStringLiteral("onvif") : QStringLiteral("vms-device");
}

/// Makes a device of one entry.
class DeviceReader
{
    Q_DECLARE_TR_FUNCTIONS(Inventory)

public:
    explicit DeviceReader(CheckedEntry &entry)
        : m_entry(entry)
    {
    }

    DevInfo read();

private:
    QString printableText(const QString &key);
    QString visibleText(const QString &key, const QString &absent = {});
    QString ipText();
    QString fingerprint();
    void readAddress(DevInfo *device);
    void checkAddress(const DevInfo &device);
    void checkUrl(const DevInfo &device, const QUrl &url);

    CheckedEntry &m_entry;
};

/// For texts that take one line of a file or one cell of a list.
QString DeviceReader::printableText(const QString &key)
{
    QString value = m_entry.text(key);
    if (holdsControls(value))
        m_entry.fail(key, tr("must not hold line breaks, tabs or control characters"));
    return value;
}

/// For texts that tell devices apart: two that differ only in characters that nobody sees would look like one device.
QString DeviceReader::visibleText(const QString &key, const QString &absent)
{
    QString value = m_entry.text(key, absent);
    if (holdsInvisible(value))
        m_entry.fail(key, tr("must not hold line breaks, tabs, control characters or characters that cannot be seen"));
    return value;
}

QString DeviceReader::ipText()
{
    const QString key = QStringLiteral("ip");
    QString ip = visibleText(key);
    // Turned back into a text and compared: "10.1" and "010.0.0.1" are valid, but not the addresses that people expect.
    if (!ip.isEmpty()
        && (QHostAddress(ip).protocol() != QAbstractSocket::IPv4Protocol || QHostAddress(ip).toString() != ip))
        m_entry.fail(key, tr("must be an IPv4 address such as 192.168.1.20, or empty where \"url\" is given"));
    return ip;
}

QString DeviceReader::fingerprint()
{
    const QString key = QStringLiteral("fingerprint");
    const QString value = m_entry.text(key);
    const QByteArray sha256 = sha256FromText(value);
    if (sha256.isEmpty() && !value.isEmpty())
        m_entry.fail(key, tr("must be a SHA-256: 64 hexadecimal digits, with or without colons"));
    return QString::fromLatin1(sha256.toHex());
}

DevInfo DeviceReader::read()
{
    DevInfo device;
    device.id = visibleText(QStringLiteral("id"));
    if (device.id.isEmpty())
        m_entry.fail(QStringLiteral("id"), tr("must be there and not be empty"));
    device.name = printableText(QStringLiteral("name"));
    device.serialNumber = visibleText(QStringLiteral("serialNumber"));
    readAddress(&device);
    device.fingerprint = fingerprint();
    device.userName = m_entry.text(QStringLiteral("userName"));
    device.password = m_entry.text(QStringLiteral("password"));
    device.accessCode = m_entry.wholeNumber(QStringLiteral("accessCode"), 0, 65535, 1);
    device.kindCode = m_entry.wholeNumber(QStringLiteral("kindCode"), 0, 65535, 1);
    device.group = visibleText(QStringLiteral("group"));
    checkAddress(device);
    return device;
}

void DeviceReader::readAddress(DevInfo *device)
{
    const QStringList protocols{textOf(DevProtocol::Vms), textOf(DevProtocol::Onvif)};
    const bool isOnvif = m_entry.choice(QStringLiteral("protocol"), protocols, 0) == 1;
    device->protocol = isOnvif ? DevProtocol::Onvif : DevProtocol::Vms;
    device->ip = ipText();
    device->ipNumber = QHostAddress(device->ip).toIPv4Address();
    device->tls = m_entry.flag(QStringLiteral("tls"));
    device->url = visibleText(QStringLiteral("url"));
    const int usualPort = isOnvif && device->url.isEmpty() ? (device->tls ? httpsPort : httpPort) : 0;
    device->port = quint16(m_entry.wholeNumber(QStringLiteral("port"), 1, 65535, usualPort));
    device->path = visibleText(QStringLiteral("path"), isOnvif ? QLatin1String(onvifPath) : device->path);
}

void DeviceReader::checkUrl(const DevInfo &device, const QUrl &url)
{
    const bool isOnvif = device.protocol == DevProtocol::Onvif;
    const QString plain = isOnvif ? QStringLiteral("http") : QStringLiteral("ws");
    const bool isSecure = url.scheme() == plain + QLatin1Char('s');
    if (!url.isValid() || url.host().isEmpty() || !(isSecure || url.scheme() == plain))
        m_entry.fail(QStringLiteral("url"),
                     tr("must be an address such as %1")
                         .arg(isOnvif ? QStringLiteral("https://relay.example:443/onvif/device_service")
                                      : QStringLiteral("wss://relay.example:443/camera-1")));
    else if (device.tls && !isSecure)
        m_entry.fail(QStringLiteral("tls"), tr("must not be true beside a \"url\" that begins with %1:").arg(plain));
}

void DeviceReader::checkAddress(const DevInfo &device)
{
    if (m_entry.hasFault(QStringLiteral("protocol")))
        return; // nobody knows which address would be right
    const QUrl url = deviceUrl(device);
    const QString secureScheme =
        device.protocol == DevProtocol::Onvif ? QStringLiteral("https") : QStringLiteral("wss");
    if (!device.url.isEmpty()) {
        checkUrl(device, url);
    } else {
        if (device.ip.isEmpty())
            m_entry.fail(QStringLiteral("ip"), tr("must be an IPv4 address where no \"url\" is given"));
        if (device.port == 0)
            m_entry.fail(QStringLiteral("port"),
                         tr("must be a whole number from 1 to 65535 where no \"url\" is given"));
        // With a wrong address or port no path makes it valid.
        const bool isWrong = m_entry.hasFault(QStringLiteral("ip")) || m_entry.hasFault(QStringLiteral("port"));
        if (!device.path.startsWith(QLatin1Char('/')) || (!isWrong && !url.isValid()))
            m_entry.fail(QStringLiteral("path"), tr("must be the path of an address and begin with \"/\""));
    }
    const bool isUnclear = m_entry.hasFault(QStringLiteral("tls")) || m_entry.hasFault(QStringLiteral("url"));
    if (!device.fingerprint.isEmpty() && url.scheme() != secureScheme && !isUnclear)
        m_entry.fail(QStringLiteral("fingerprint"),
                     tr("has no use without TLS: set tls to true or give a %1: url").arg(secureScheme));
}

/// The fields that no two entries may have in common.
class UniqueFields
{
    Q_DECLARE_TR_FUNCTIONS(Inventory)

public:
    void check(CheckedEntry &entry, const DevInfo &device);

private:
    void check(CheckedEntry &entry, const QString &key, const QString &value);

    QHash<QString, QString> m_entryOf; ///< names, by field and value
};

void UniqueFields::check(CheckedEntry &entry, const DevInfo &device)
{
    check(entry, QStringLiteral("id"), device.id);
    check(entry, QStringLiteral("serialNumber"), device.serialNumber);
    check(entry, device.url.isEmpty() ? QStringLiteral("ip") : QStringLiteral("url"), deviceUrl(device).toString());
}

void UniqueFields::check(CheckedEntry &entry, const QString &key, const QString &value)
{
    QString &first = m_entryOf[key + QLatin1Char(' ') + value];
    if (!first.isEmpty() && !value.isEmpty())
        entry.fail(key, tr("must not be the same as in %1").arg(first));
    first = entry.name();
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
    if (device.protocol != DevProtocol::Vms)
        entry.insert(QStringLiteral("protocol"), textOf(device.protocol));
    if (device.port != 0)
        entry.insert(QStringLiteral("port"), device.port);
    if (!device.group.isEmpty())
        entry.insert(QStringLiteral("group"), device.group);
    if (!device.url.isEmpty())
        entry.insert(QStringLiteral("url"), device.url);
    if (!device.fingerprint.isEmpty())
        entry.insert(QStringLiteral("fingerprint"), device.fingerprint);
    return entry;
}

} // namespace

Inventory readInventory(const QString &path)
{
    CheckedFile file(path, QStringLiteral("devices"));
    QList<DevInfo> devices;
    UniqueFields uniqueFields;
    file.read([&](CheckedEntry &entry) {
        const DevInfo device = DeviceReader(entry).read();
        entry.setName(DeviceReader::tr("%1 (id \"%2\")").arg(entry.name(), device.id));
        uniqueFields.check(entry, device);
        devices.append(device);
    });

    const bool isSecret =
        std::any_of(devices.cbegin(), devices.cend(), [](const DevInfo &device) { return !device.password.isEmpty(); });
    const QFile::Permissions ofOthers = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup
                                      | QFile::WriteOther; // who can change the file can put other devices into it
    if (isSecret && (file.permissions() & ofOthers))
        file.fail(
            DeviceReader::tr("holds passwords and may be read or changed by others; set its mode to 0600 (chmod 600)"));
    if (!file.error().isEmpty())
        return {{}, {}, file.error()};
    return {devices, file.warnings(), {}};
}

InventoryEntries checkInventoryEntries(const QVector<InventoryEntries::Entry> &entries)
{
    InventoryEntries checked;
    UniqueFields uniqueFields;
    for (int i = 0; i < entries.size(); ++i) {
        CheckedEntry entry(entries.at(i).name, entries.at(i).fields);
        checked.devices.append(DeviceReader(entry).read());
        uniqueFields.check(entry, checked.devices.constLast());
        for (const CheckedEntry::Fault &fault : entry.faults())
            checked.faults.append({i, fault.key, fault.whatIsRight});
    }
    if (!checked.faults.isEmpty())
        checked.devices.clear();
    return checked;
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
    const QString why = writeWholeFile(path, QJsonDocument(inventoryToJson(devices)).toJson(), Readers::OwnerOnly);
    return why.isEmpty() ? QString() : DeviceReader::tr("%1: cannot be written: %2").arg(path, why);
}

} // namespace vms_sdk
