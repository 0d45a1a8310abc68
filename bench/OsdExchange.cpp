#include "OsdExchange.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace osd_exchange {

namespace {

QString request(const QString &method, const QJsonObject &param)
{
    const QJsonObject object{{QStringLiteral("method"), method},
                             {QStringLiteral("level"), QStringLiteral("Operator")},
                             {QStringLiteral("param"), param}};
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

QJsonObject parse(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

bool isRefused(const QJsonObject &answer)
{
    return answer.value(QLatin1String("error")).toObject().value(QLatin1String("errorcode")).toInt() != 0;
}

QString answer(const QString &method, const QJsonObject &result)
{
    QJsonObject object{{QStringLiteral("method"), method},
                       {QStringLiteral("error"), QJsonObject{{QStringLiteral("errorcode"), 0}}}};
    if (!result.isEmpty())
        object.insert(QStringLiteral("result"), result);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

QString readRequest()
{
    return request(QStringLiteral("chnosd_get_param"), {{QStringLiteral("channelid"), 0}});
}

QString writeRequest(const QString &readAnswer)
{
    static const QJsonObject wanted{{QStringLiteral("bShowOSD"), false},
                                    {QStringLiteral("timeFormat"), QStringLiteral("YYYY-MM-DD hh:mm:ss")},
                                    {QStringLiteral("timePos"), QStringLiteral("left_top")},
                                    {QStringLiteral("channelName"), QStringLiteral("HD IPC")},
                                    {QStringLiteral("position"), QStringLiteral("left_top")},
                                    {QStringLiteral("bLargeOSD"), false}};
    const QJsonObject answer = parse(readAnswer);
    if (isRefused(answer))
        return {};
    QJsonObject merged = answer.value(QLatin1String("result")).toObject();
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        const auto known = merged.find(it.key());
        if (known != merged.end())
            *known = it.value();
    }
    return request(QStringLiteral("chnosd_set_param"),
                   {{QStringLiteral("channelid"), 0}, {QStringLiteral("attr"), merged}});
}

bool isAccepted(const QString &writeAnswer)
{
    return !isRefused(parse(writeAnswer));
}

QString readAnswer(int transparency)
{
    return answer(QStringLiteral("chnosd_get_param"),
                  {{QStringLiteral("bShowOSD"), true},
                   {QStringLiteral("timeFormat"), QStringLiteral("MM/DD/YYYY hh:mm:ss")},
                   {QStringLiteral("timePos"), QStringLiteral("right_top")},
                   {QStringLiteral("bShowWeek"), true},
                   {QStringLiteral("channelName"), QStringLiteral("Gate 17")},
                   {QStringLiteral("position"), QStringLiteral("left_bottom")},
                   {QStringLiteral("bLargeOSD"), true},
                   {QStringLiteral("fontColor"), QStringLiteral("#ffffff")},
                   {QStringLiteral("transparency"), transparency}});
}

QString writeAnswer()
{
    return answer(QStringLiteral("chnosd_set_param"), {});
}

} // namespace osd_exchange
