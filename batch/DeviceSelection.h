#pragma once

#include <vms_client_sdk/DevInfo.h>

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <functional>

namespace orda_batch {

/// Which devices of an inventory a command is about. Terms with commas between them: "all", "offered", an id, a serial
/// number, "name=GLOB", "ip=10.1.0.0/16", "kind=camera", "kind=recorder", "group=NAME", "@FILE" (a term a line),
/// "failed:RUN", and "not:" before any of these. Devices that some term names and no "not:" does are selected; where
/// there are only "not:", of all.
class DeviceSelection
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::DeviceSelection)

public:
    /// What else of the devices must be known.
    struct Knowledge
    {
        /// Whether the list of devices would offer it now.
        std::function<bool(const QString &devId)> isOffered;
        /// The devices of a run that did not end well. @param error for the user
        std::function<QStringList(const QString &run, QString *error)> failedIn;
    };

    struct Selected
    {
        QStringList devIds; ///< in the order of the inventory
        int leftOut = 0; ///< matched, and no camera or recorder that is reached directly
        QString error; ///< a term that matches nothing, or more than one device where one is meant
        bool isEmpty = false; ///< the error is that there is no device
    };

    /// @param error what is wrong with the terms, or with a file of them; empty when nothing is
    static DeviceSelection parse(const QString &text, QString *error);

    /// The devices that may be in it: no others need to be connected.
    Selected connectTo(const QList<vms_sdk::DevInfo> &inventory, const Knowledge &knowledge) const;
    Selected of(const QList<vms_sdk::DevInfo> &inventory, const Knowledge &knowledge) const;

private:
    struct Term
    {
        enum Kind
        {
            All,
            Offered,
            Device, ///< an id or a serial number
            Name,
            Address,
            DeviceKind,
            Group,
            FailedIn
        } kind = Device;
        QString text; ///< what follows the "="
        QString shown; ///< as it was written, with file and line, for messages
        bool isExcluded = false;
    };

    class Match;

    QString add(const QString &written, const QString &place, bool isExcluded);
    QString addFile(const QString &path, bool isExcluded);
    Selected select(const QList<vms_sdk::DevInfo> &inventory, const Knowledge &knowledge, bool isOfferedKnown) const;

    QVector<Term> m_terms;
};

/// One of @p shards shares, counted from 1: the devices whose id's SHA-256 begins with 8 bytes that, as a number with
/// the first byte highest, leave @p shard - 1 when divided by @p shards.
QStringList shareOf(const QStringList &devIds, int shard, int shards);

} // namespace orda_batch
