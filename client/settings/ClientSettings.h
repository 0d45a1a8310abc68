#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

QT_BEGIN_NAMESPACE
class QSettings;
class QWidget;
QT_END_NAMESPACE

namespace orda_client {

/// What the client remembers for its user: settings, and how the windows were. A value in the file that makes no sense
/// counts as not there. Several clients may use one file: none takes out what another has put into a list. GUI thread.
class ClientSettings
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::ClientSettings)

public:
    /// A device of a selection, as it was when it was saved.
    struct SavedDevice
    {
        QString devId;
        QString serialNumber; ///< empty where it was not known
    };

    static constexpr int usualAskAbove = 50;

    /// orda/client.ini of the configuration directory ($XDG_CONFIG_HOME, else ~/.config).
    static QString usualPath();

    /// @param path of the file; empty: nothing is remembered, and all is as it is at first
    explicit ClientSettings(const QString &path);
    ~ClientSettings();

    /// Configure asks before a run over more devices than this. 0: always.
    int askAbove() const;
    void setAskAbove(int devices);

    /// A run is stopped when more than this share of its devices has failed, in per cent from 1 to 99; 0: never.
    int haltShare() const;
    void setHaltShare(int percent);

    /// "light", "dark" or empty: as the desktop is.
    QString theme() const;
    void setTheme(const QString &theme);

    /// A code of orda_programs::Translations::languages(), or empty: the system's.
    QString language() const;
    void setLanguage(const QString &language);

    /// CfgFamily::name of the page that was shown last; empty at first.
    QString page() const;
    void setPage(const QString &family);

    /// Paths, the latest first, each once.
    QStringList recentInventories() const;
    void addRecentInventory(const QString &path);
    void removeRecentInventory(const QString &path);

    /// Selections of devices that the user has given names.
    QMap<QString, QVector<SavedDevice>> selections() const;
    /// @param devices none: the name is forgotten
    void setSelection(const QString &name, const QVector<SavedDevice> &devices);

    /// Values of a family that the user has given names.
    QMap<QString, QJsonObject> profiles(const QString &family) const;
    /// @param values empty: the name is forgotten
    void setProfile(const QString &family, const QString &name, const QJsonObject &values);

    /// Writes what was set at once. @return why it is forgotten when the client ends, for the user; empty when it is
    /// kept
    QString writeProblem();

    /// Gives a window the size, place and state that it had last, as far as these are on a screen; before it is shown.
    /// @return false when nothing is known of it: it stays as it is
    bool restoreGeometry(QWidget *window) const;
    /// @param window with an object name, which stays the same from start to start
    void keepGeometry(const QWidget *window);

private:
    QVariant value(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);
    QJsonObject object(const QString &key) const;
    void setObject(const QString &key, const QJsonObject &object);
    void takeOthers() const;

    std::unique_ptr<QSettings> m_file; // null: nothing is remembered
};

} // namespace orda_client
