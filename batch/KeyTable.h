#pragma once

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace orda_batchCfg {
struct CfgExchange;
struct CfgFamily;
struct CfgKey;
} // namespace orda_batchCfg

namespace orda_batch {

/// What can be set of a family, under the names that --set and values files use: those that devices use, and of a list
/// of streams "stream0.bitRate". Values are checked against what the family says of the key.
class KeyTable
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::KeyTable)

public:
    /// @param isUnchecked lets keys pass that the family does not have, and values that it does not name
    KeyTable(const orda_batchCfg::CfgFamily &family, bool isUnchecked);

    const orda_batchCfg::CfgFamily &family() const { return m_family; }

    /// The names as they are shown to people, in the order of the family; "streamN.bitRate" where there is a list.
    QStringList names() const;
    /// What a key may be, in words and with its choices: "0 to 100", "h264, h265". @param name one of names()
    QString rangeOf(const QString &name) const;
    /// "switch", "number", "text" or "choice". @param name one of names()
    QString typeOf(const QString &name) const;
    /// Its choices as JSON values, of a switch too; empty when it has none. @param name one of names()
    QJsonArray choicesOf(const QString &name) const;

    /// What is wrong with a key, and which ones there are; empty when nothing is. @param name such as "stream0.bitRate"
    QString faultOfKey(const QString &name) const;
    /// A value of a key that faultOfKey() has passed, as text: of --set and of CSV files. Of unchecked ones what the
    /// key's type does not allow is taken as JSON where it is JSON, and else as a text.
    /// @param error what would be right; empty when it is
    QJsonValue fromText(const QString &name, const QString &text, QString *error) const;
    /// The same for a value of a JSON file, which must have the type that devices use. @return what would be right
    QString faultOf(const QString &name, const QJsonValue &value) const;
    /// What else must be given beside these keys, as width goes with height. @param byName values by name; null of one
    /// that is wrong
    QString faultTogether(const QJsonObject &byName) const;

    /// The values of a run, as the family's tasks take them.
    QJsonObject toValues(const QJsonObject &byName) const;
    /// Those of @p members (CfgExchange::membersOf()) that have a key in the table, stream by stream in the order of
    /// names().
    QStringList membersWithKey(const QStringList &members) const;

private:
    /// A name in its parts.
    struct Name
    {
        QString entry; ///< "stream0."; empty where there is no list
        QString key;
    };

    std::optional<Name> parts(const QString &name) const;
    const orda_batchCfg::CfgKey *keyOf(const QString &name) const;
    QString nearestTo(const QString &name) const;
    QString faultOfResolution(const QString &entry, const QJsonObject &byName) const;
    static QString faultOfValue(const orda_batchCfg::CfgKey &key, const QJsonValue &value);

    const orda_batchCfg::CfgFamily &m_family;
    const orda_batchCfg::CfgExchange &m_exchange; ///< the one with the list, else any: they all name members alike
    bool m_isUnchecked;
};

} // namespace orda_batch
