#include "client/settings/ClientSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

namespace orda_client {

namespace {

constexpr int longestRecent = 8;
constexpr int mostDevices = 1000000;

/// A whole number from the file, where it is one within its limits.
int numberIn(const QVariant &stored, int least, int most, int usual)
{
    bool isNumber = false;
    const int number = stored.toInt(&isNumber);
    return isNumber && number >= least && number <= most ? number : usual;
}

QString geometryKey(const QWidget *window)
{
    return QStringLiteral("windows/%1").arg(window->objectName());
}

QString profilesKey(const QString &family)
{
    return QStringLiteral("profiles/%1").arg(family);
}

} // namespace

QString ClientSettings::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orda/client.ini");
}

ClientSettings::ClientSettings(const QString &path)
    : m_file(path.isEmpty() ? nullptr : std::make_unique<QSettings>(path, QSettings::IniFormat))
{
    if (m_file)
        m_file->setIniCodec("UTF-8");
}

ClientSettings::~ClientSettings() = default;

QVariant ClientSettings::value(const QString &key) const
{
    return m_file ? m_file->value(key) : QVariant();
}

void ClientSettings::setValue(const QString &key, const QVariant &value)
{
    if (m_file)
        m_file->setValue(key, value);
}

// As a text: names of selections and profiles are the user's, and may hold what a key of the file may not.
QJsonObject ClientSettings::object(const QString &key) const
{
    return QJsonDocument::fromJson(value(key).toString().toUtf8()).object();
}

void ClientSettings::setObject(const QString &key, const QJsonObject &object)
{
    setValue(key, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
    takeOthers(); // and gives the others this
}

/// What another client has written since the file was read last.
void ClientSettings::takeOthers() const
{
    if (m_file)
        m_file->sync();
}

QString ClientSettings::writeProblem()
{
    takeOthers();
    return !m_file || m_file->status() == QSettings::NoError
             ? QString()
             : tr("It is kept until the client ends, and no longer: the file of the settings cannot be written.");
}

int ClientSettings::askAbove() const
{
    return numberIn(value(QStringLiteral("askAbove")), 0, mostDevices, usualAskAbove);
}

void ClientSettings::setAskAbove(int devices)
{
    setValue(QStringLiteral("askAbove"), devices);
}

int ClientSettings::haltShare() const
{
    return numberIn(value(QStringLiteral("haltShare")), 0, 99, 0);
}

void ClientSettings::setHaltShare(int percent)
{
    setValue(QStringLiteral("haltShare"), percent);
}

QString ClientSettings::theme() const
{
    const QString theme = value(QStringLiteral("theme")).toString();
    return theme == QLatin1String("light") || theme == QLatin1String("dark") ? theme : QString();
}

void ClientSettings::setTheme(const QString &theme)
{
    setValue(QStringLiteral("theme"), theme);
}

QString ClientSettings::language() const
{
    return value(QStringLiteral("language")).toString();
}

void ClientSettings::setLanguage(const QString &language)
{
    setValue(QStringLiteral("language"), language);
}

QString ClientSettings::page() const
{
    return value(QStringLiteral("page")).toString();
}

void ClientSettings::setPage(const QString &family)
{
    setValue(QStringLiteral("page"), family);
}

QStringList ClientSettings::recentInventories() const
{
    return value(QStringLiteral("recentInventories")).toStringList();
}

void ClientSettings::addRecentInventory(const QString &path)
{
    takeOthers();
    QStringList recent = recentInventories();
    recent.removeAll(path);
    recent.prepend(path);
    setValue(QStringLiteral("recentInventories"), QStringList(recent.mid(0, longestRecent)));
}

void ClientSettings::removeRecentInventory(const QString &path)
{
    takeOthers();
    QStringList recent = recentInventories();
    recent.removeAll(path);
    setValue(QStringLiteral("recentInventories"), recent);
}

QMap<QString, QVector<ClientSettings::SavedDevice>> ClientSettings::selections() const
{
    takeOthers();
    QMap<QString, QVector<SavedDevice>> selections;
    const QJsonObject stored = object(QStringLiteral("selections"));
    for (auto name = stored.begin(); name != stored.end(); ++name) {
        QVector<SavedDevice> devices;
        const QJsonArray saved = name.value().toArray();
        for (const QJsonValue &device : saved)
            if (const QString devId = device[QLatin1String("id")].toString(); !devId.isEmpty())
                devices.append({devId, device[QLatin1String("serialNumber")].toString()});
        if (!devices.isEmpty())
            selections.insert(name.key(), devices);
    }
    return selections;
}

void ClientSettings::setSelection(const QString &name, const QVector<SavedDevice> &devices)
{
    takeOthers();
    QJsonObject stored = object(QStringLiteral("selections"));
    QJsonArray saved;
    for (const SavedDevice &device : devices)
        saved.append(
            QJsonObject{{QStringLiteral("id"), device.devId}, {QStringLiteral("serialNumber"), device.serialNumber}});
    if (saved.isEmpty())
        stored.remove(name);
    else
        stored.insert(name, saved);
    setObject(QStringLiteral("selections"), stored);
}

QMap<QString, QJsonObject> ClientSettings::profiles(const QString &family) const
{
    QMap<QString, QJsonObject> profiles;
    const QJsonObject stored = object(profilesKey(family));
    for (auto name = stored.begin(); name != stored.end(); ++name)
        if (!name.value().toObject().isEmpty())
            profiles.insert(name.key(), name.value().toObject());
    return profiles;
}

void ClientSettings::setProfile(const QString &family, const QString &name, const QJsonObject &values)
{
    takeOthers();
    QJsonObject stored = object(profilesKey(family));
    if (values.isEmpty())
        stored.remove(name);
    else
        stored.insert(name, values);
    setObject(profilesKey(family), stored);
}

bool ClientSettings::restoreGeometry(QWidget *window) const
{
    return window->restoreGeometry(value(geometryKey(window)).toByteArray());
}

void ClientSettings::keepGeometry(const QWidget *window)
{
    setValue(geometryKey(window), window->saveGeometry());
}

} // namespace orda_client
