#pragma once

#include "run/CfgExchange.h"

#include <QJsonValue>
#include <QMetaObject>
#include <QObject>
#include <QVector>

namespace orda_batchCfg {

class ParamsCfgTask;

/// One of the values that a key may have, and the text by which an operator chooses it.
struct CfgChoice
{
    CfgChoice(const char *latin1, const char *shownText);
    /// @param shownText null: the number itself is shown, and the item of a combo box has no data. All choices of a key
    /// have a text, or none has.
    CfgChoice(int number, const char *shownText = nullptr);

    QJsonValue value; ///< as devices read it
    const char *text; ///< not yet translated
};

/// One key of a family's values: what it may be, and which exchange writes it.
struct CfgKey
{
    enum Type
    {
        Switch, ///< true or false
        NumberSwitch, ///< 1 or 0
        Text,
        Number,
        Choice
    };

    static constexpr int longestText = 32767; ///< that an editor takes unless told otherwise

    static CfgKey switchOf(const char *name, int flag = 0);
    static CfgKey numberSwitch(const char *name, int flag = 0);
    /// @param maxLength in UTF-16 code units
    static CfgKey text(const char *name, int maxLength = longestText, int flag = 0);
    /// @param initial what the editor shows at first
    static CfgKey number(const char *name, int minimum, int maximum, int initial, int flag = 0);
    /// @param initial index of the choice that the editor shows at first
    static CfgKey choice(const char *name, const QVector<CfgChoice> &choices, int flag = 0, int initial = 0);

    /// What else must be given where this key is. For programs whose users name keys one by one: an editor of a page
    /// may set several keys at once.
    CfgKey needing(const QStringList &others) &&;

    QString name;
    Type type;
    int flag; ///< of the exchange that the key asks for: CfgExchange::flag
    int minimum = 0; ///< of a Number
    int maximum = 0; ///< of a Number; of a Text the longest length
    int initial = 0;
    QVector<CfgChoice> choices = {}; ///< of a Choice
    QStringList needs = {}; ///< needing()
};

/// A member of a device's settings that a write gives another value (CfgExchange::membersOf()).
struct MemberChange
{
    int exchange; ///< its place in CfgFamily::exchanges
    QString member;
    QJsonValue before; ///< undefined when the device does not have the member
    QJsonValue after;
};

/// What a family of parameters is, as data: what is asked of a device, what may be set, and the texts about it. It is
/// constant and free of widgets: pages, tasks and other programs use the same.
struct CfgFamily
{
    /// Makes the task of one device, which has sent its first request when it is returned.
    /// @param values the parameters to set, by key
    /// @param flags the exchanges to run: the flags of the keys in @p values, joined
    using CreateTask = ParamsCfgTask *(*)(const QString &devId, const QJsonObject &values, int flags, QObject *parent);

    QString name; ///< short and never translated: names the record file, and the family in other programs
    const QMetaObject *context; ///< of the texts: the class in whose scope they stand
    const char *title; ///< of a run's summary
    const char *timeoutText;
    QVector<CfgExchange> exchanges; ///< in the order in which they run
    QVector<CfgKey> keys;
    CreateTask createTask;

    /// The first of the exchanges from @p from on that @p flags ask for, or -1.
    int exchangeFrom(int from, int flags) const;
    /// The exchanges that a run with @p flags goes through, in their order; the last one when they ask for none.
    QVector<int> exchangesOf(int flags) const;
    /// What a write changes on a device; what it merely repeats is not in it.
    /// @param exchange its place among the exchanges
    /// @param param of the write
    QVector<MemberChange> changesBy(int exchange, const QJsonObject &device, const QJsonObject &param) const;
    /// One of the family's texts in the language of the application.
    QString translated(const char *text) const;
    /// File name of the record of a run, without a directory.
    QString recordFile() const;
    /// The flags of those keys that @p values has, joined: what CreateTask is given.
    int flagsOf(const QJsonObject &values) const;
    /// One of the family's keys. Any other is a mistake in the program, which ends.
    const CfgKey &key(const char *latin1) const;
};

} // namespace orda_batchCfg
