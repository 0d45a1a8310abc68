#pragma once

#include <vms_client_sdk/DeviceTransport.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include <functional>

/// Stands in for the network: keeps what was sent and answers as the test's script says.
class ScriptedTransport : public vms_sdk::DeviceTransport
{
    Q_OBJECT

public:
    struct Request
    {
        QString requestId, devId, text;

        QJsonObject json() const { return QJsonDocument::fromJson(text.toUtf8()).object(); }
        QString method() const { return json().value(QLatin1String("method")).toString(); }
    };
    /// The texts with which a request is answered, in their order; none: the device is silent.
    using Script = std::function<QStringList(const Request &)>;

    explicit ScriptedTransport(Script answers)
        : script(std::move(answers))
    {
    }

    void send(const QString &requestId, const QString &devId, const QString &text) override
    {
        requests.append({requestId, devId, text});
        const QStringList texts = script(requests.constLast());
        for (const QString &answerText : texts)
            emit answered(requestId, answerText);
        emit sent(requests.size());
    }

    void passedOn(const QString &, const QString &text) override { passed.append(text); }

    QStringList methods() const
    {
        QStringList names;
        for (const Request &request : requests)
            names.append(request.method());
        return names;
    }

    Script script;
    QList<Request> requests;
    QStringList passed; // answers that were passed on

signals:
    void sent(int count); ///< requests so far
};

inline QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

/// An answer as devices give it.
inline QString answer(const QString &method, const QJsonObject &result = {}, int errorCode = 0)
{
    const QJsonObject error{{QStringLiteral("errorcode"), errorCode}};
    return QString::fromUtf8(QJsonDocument(QJsonObject{{QStringLiteral("method"), method},
                                                       {QStringLiteral("error"), error},
                                                       {QStringLiteral("result"), result}})
                                 .toJson(QJsonDocument::Compact));
}
