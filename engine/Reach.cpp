#include "engine/Reach.h"

#include "run/DevEligibility.h"

#include <orda_data/DevsMgrData.h>

#include <QCoreApplication>
#include <QDateTime>

namespace orda_engine {

namespace {

using orda_batchCfg::Eligibility;
using vms_sdk::LinkTrouble;
using vms_sdk::TroubleReason;

/// The context of the texts.
class ReachTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_engine::Reach)
};

ReachReason reasonOf(Eligibility eligibility)
{
    switch (eligibility) {
    case Eligibility::Eligible:
        break;
    case Eligibility::NoId:
        return ReachReason::NoSuchDevice;
    case Eligibility::NotReachedDirectly:
        return ReachReason::NotReachedDirectly;
    case Eligibility::NotCameraNorRecorder:
        return ReachReason::Kind;
    case Eligibility::NotOnline:
        return ReachReason::Offline;
    case Eligibility::FactoryPassword:
        return ReachReason::FactoryPassword;
    case Eligibility::Locked:
        return ReachReason::Locked;
    case Eligibility::NoPassword:
        return ReachReason::NoPassword;
    case Eligibility::WeakPassword:
        return ReachReason::WeakPassword;
    }
    return ReachReason::None;
}

ReachReason reasonOf(TroubleReason trouble)
{
    switch (trouble) {
    case TroubleReason::None:
    case TroubleReason::ConnectionLost:
        break;
    case TroubleReason::Password:
        return ReachReason::Password;
    case TroubleReason::SerialNumber:
        return ReachReason::SerialNumber;
    case TroubleReason::SignOn:
        return ReachReason::SignOn;
    case TroubleReason::Certificate:
        return ReachReason::Certificate;
    case TroubleReason::Tls:
        return ReachReason::Tls;
    case TroubleReason::ConnectionRefused:
        return ReachReason::ConnectionRefused;
    case TroubleReason::NoAnswer:
        return ReachReason::NoAnswer;
    case TroubleReason::NoAddress:
        return ReachReason::NoAddress;
    case TroubleReason::Limits:
        return ReachReason::Limits;
    }
    return ReachReason::Offline;
}

QString timeText(qint64 since)
{
    const QDateTime then = QDateTime::fromMSecsSinceEpoch(since);
    const bool isToday = then.date() == QDate::currentDate();
    return then.toString(isToday ? QStringLiteral("hh:mm:ss") : QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

Reach notConnected(vms_sdk::DevStatus status, const LinkTrouble &trouble)
{
    const ReachReason reason = reasonOf(trouble.reason);
    const QString words = reason == ReachReason::Offline ? QString() : reachText(reason); // only the time tells more
    if (trouble.offlineSince > 0) {
        const QString since = timeText(trouble.offlineSince);
        return {false, reason,
                words.isEmpty() ? ReachTexts::tr("off line since %1").arg(since)
                                : ReachTexts::tr("%1, off line since %2").arg(words, since)};
    }
    if (!words.isEmpty())
        return {false, reason, words};
    if (trouble.reason == TroubleReason::None && status == vms_sdk::DevConnecting)
        return {false, ReachReason::Connecting, reachText(ReachReason::Connecting)};
    if (trouble.reason == TroubleReason::None && status == vms_sdk::DevRefused)
        return {false, ReachReason::SignOn, ReachTexts::tr("sign-on refused")}; // by a transport that does not say why
    return {false, ReachReason::Offline, reachText(ReachReason::Offline)};
}

} // namespace

Reach reachOf(const QString &devId)
{
    const auto &store = orda_data::DevsMgrData::instance();
    const Eligibility eligibility = orda_batchCfg::devEligibility(store.getDevInfoById(devId));
    if (eligibility == Eligibility::NotOnline)
        return notConnected(store.getDevStatus(devId), store.getDevTrouble(devId));
    return {eligibility == Eligibility::Eligible, reasonOf(eligibility), orda_batchCfg::eligibilityText(eligibility)};
}

QString reachText(ReachReason reason)
{
    using orda_batchCfg::eligibilityText;
    switch (reason) {
    case ReachReason::None:
        break;
    case ReachReason::NoSuchDevice:
        return eligibilityText(Eligibility::NoId);
    case ReachReason::NotReachedDirectly:
        return eligibilityText(Eligibility::NotReachedDirectly);
    case ReachReason::Kind:
        return eligibilityText(Eligibility::NotCameraNorRecorder);
    case ReachReason::FactoryPassword:
        return eligibilityText(Eligibility::FactoryPassword);
    case ReachReason::Locked:
        return eligibilityText(Eligibility::Locked);
    case ReachReason::NoPassword:
        return eligibilityText(Eligibility::NoPassword);
    case ReachReason::WeakPassword:
        return eligibilityText(Eligibility::WeakPassword);
    case ReachReason::Offline:
        return ReachTexts::tr("off line");
    case ReachReason::Connecting:
        return ReachTexts::tr("connecting");
    case ReachReason::Password:
        return ReachTexts::tr("refused: user name or password");
    case ReachReason::SerialNumber:
        return ReachTexts::tr("refused: the serial number is another one");
    case ReachReason::SignOn:
        return ReachTexts::tr("does not sign on as it should");
    case ReachReason::Certificate:
        return ReachTexts::tr("certificate not accepted");
    case ReachReason::Tls:
        return ReachTexts::tr("no secure connection");
    case ReachReason::ConnectionRefused:
        return ReachTexts::tr("connection refused");
    case ReachReason::NoAnswer:
        return ReachTexts::tr("no answer");
    case ReachReason::NoAddress:
        return ReachTexts::tr("no address, or its name is not known");
    case ReachReason::Limits:
        return ReachTexts::tr("cut off: it went beyond a limit");
    }
    return {};
}

QString reachName(ReachReason reason)
{
    switch (reason) {
    case ReachReason::None:
        break;
    case ReachReason::NoSuchDevice:
        return QStringLiteral("no-such-device");
    case ReachReason::NotReachedDirectly:
        return QStringLiteral("not-direct");
    case ReachReason::Kind:
        return QStringLiteral("kind");
    case ReachReason::FactoryPassword:
        return QStringLiteral("factory-password");
    case ReachReason::Locked:
        return QStringLiteral("locked");
    case ReachReason::NoPassword:
        return QStringLiteral("no-password");
    case ReachReason::WeakPassword:
        return QStringLiteral("weak-password");
    case ReachReason::Offline:
        return QStringLiteral("offline");
    case ReachReason::Connecting:
        return QStringLiteral("connecting");
    case ReachReason::Password:
        return QStringLiteral("password");
    case ReachReason::SerialNumber:
        return QStringLiteral("serial-number");
    case ReachReason::SignOn:
        return QStringLiteral("sign-on");
    case ReachReason::Certificate:
        return QStringLiteral("certificate");
    case ReachReason::Tls:
        return QStringLiteral("tls");
    case ReachReason::ConnectionRefused:
        return QStringLiteral("connection-refused");
    case ReachReason::NoAnswer:
        return QStringLiteral("no-answer");
    case ReachReason::NoAddress:
        return QStringLiteral("no-address");
    case ReachReason::Limits:
        return QStringLiteral("limits");
    }
    return QStringLiteral("none");
}

} // namespace orda_engine
