#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

namespace orda_batchCfg {
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
    /// Its choices as JSON values; empty when it has none. @param name one of names()
    QJsonArray choicesOf(const QString &name) const;

    /// What is wrong with a key, and which ones there are; empty when nothing is. @param name such as "stream0.bitRate"
    QString faultOfKey(const QString &name) const;
    /// A value of a key that faultOfKey() has passed, as text: of --set and of CSV files.
    /// @param error what would be right; empty when it is
    QJsonValue fromText(const QString &name, const QString &text, QString *error) const;
    /// The same for a value of a JSON file, which must have the type that devices use. @return what would be right
    QString faultOf(const QString &name, const QJsonValue &value) const;
    /// What else must be given beside these keys, as width goes with height. @param byName values by name
    QString faultTogether(const QJsonObject &byName) const;

    /// The values of a run, as the family's tasks take them.
    QJsonObject toValues(const QJsonObject &byName) const;
    /// Those of @p members (CfgExchange::membersOf()) that have a key in the table, in the order of names().
    QStringList membersWithKey(const QStringList &members) const;

private:
    const orda_batchCfg::CfgKey *keyOf(const QString &name) const;

    const orda_batchCfg::CfgFamily &m_family;
    bool m_isUnchecked;
};

} // namespace orda_batch
