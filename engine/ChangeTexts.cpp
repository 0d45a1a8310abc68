#include "engine/ChangeTexts.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace orda_engine {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_engine::ChangeTexts)
};

QString listed(const QStringList &parts)
{
    return parts.join(QLatin1String(", "));
}

} // namespace

QString shortened(const QString &text)
{
    constexpr int longest = 200;
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("…");
}

QString textOf(const QJsonValue &value)
{
    if (value.isUndefined())
        return QStringLiteral("-");
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2)); // without its brackets
}

QString plainTextOf(const QJsonValue &value)
{
    return value.isString() ? value.toString() : textOf(value);
}

QString textOf(const QVector<MemberDifference> &differences)
{
    QStringList parts;
    for (const MemberDifference &d : differences)
        parts.append(
            Texts::tr("%1: %2 instead of %3").arg(d.member, shortened(textOf(d.found)), shortened(textOf(d.wanted))));
    return listed(parts);
}

QString textOfLeft(const DeviceUndo &undo)
{
    QStringList changed, stay;
    for (const ExchangeUndo &exchange : undo) {
        for (const MemberDifference &d : exchange.changedSince)
            if (!exchange.goBack.contains(d.member))
                changed.append(QStringLiteral("%1: %2").arg(d.member, shortened(textOf(d.found))));
        for (const MemberDifference &d : exchange.notRemovable)
            stay.append(d.member);
    }
    QStringList parts;
    if (!changed.isEmpty())
        parts.append(Texts::tr("changed since and left as it is: %1").arg(listed(changed)));
    if (!stay.isEmpty())
        parts.append(Texts::tr("not there before and cannot be taken out: %1").arg(listed(stay)));
    return parts.join(QLatin1String("; "));
}

} // namespace orda_engine
