#pragma once

#include <vms_client_sdk/onvif/CameraCalls.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QFile>
#include <QMap>
#include <QTimer>
#include <QtTest>

/// A camera in memory: it answers with what is in a file of tests/cases, and takes what is set. Requests pass as text.
class MemoryCamera : public vms_sdk::CameraCalls
{
public:
    using Element = vms_sdk::XmlElement;

    /// @param setup a file's name; what is replaced in its text before it is read; operations that fail, and how:
    /// "onvif_media.xml; JPEG => H264; @SetOSD NotAuthorized; @GetOSDs silent"
    explicit MemoryCamera(const QString &setup)
    {
        QStringList parts = setup.split("; ");
        QFile file(QFINDTESTDATA("../cases") + '/' + parts.takeFirst());
        file.open(QIODevice::ReadOnly); // without it there is no XML
        const QStringList failing = parts.filter(QRegularExpression("^@"));
        for (const QString &each : failing)
            failures.insert(each.section(' ', 0, 0).mid(1), each.section(' ', 1));
        parts = parts.filter(QRegularExpression("^[^@]"));
        const vms_sdk::XmlRead read = vms_sdk::readXml(replaced(file.readAll(), parts).toUtf8());
        for (const Element &each : read.root->children)
            answers.insert(each.name.chopped(8), vms_sdk::detached({&*read.root, &each}));
    }

    static QString replaced(QString text, const QStringList &changes)
    {
        for (const QString &change : changes) {
            const QString from = change.section("=>", 0, 0).trimmed();
            if (!change.isEmpty() && !text.contains(from))
                qFatal("nothing to replace: %s", qPrintable(change));
            text.replace(from, change.section("=>", 1).trimmed());
        }
        return text;
    }

    bool hasService(vms_sdk::OnvifService service) const override
    {
        const bool isMedia2 = answers.value("GetProfiles").namespaceUri == QLatin1String(vms_sdk::onvif::tr2);
        return isMedia2 || service == vms_sdk::OnvifService::Device || service == vms_sdk::OnvifService::Media;
    }

    void call(vms_sdk::OnvifService, const Element &operation, bool isRepeatable, QObject *owner,
              const Done &done) override
    {
        const Element request = *vms_sdk::readXml(vms_sdk::writeXml(operation)).root;
        int &most = isRepeatable ? mostReads : mostWrites;
        most = qMax(most, ++waiting);
        if (!request.name.startsWith("Get"))
            sent.append(request.name + (isRepeatable ? "?" : "") + (request.children.size() > 1 ? "+" : ""));
        QTimer::singleShot(0, owner, [this, request, done] {
            --waiting;
            if (failures.value(request.name) != "silent")
                done(resultOf(request));
        });
    }

    /// What all operations read.
    QString dump() const
    {
        QString text;
        for (const Element &each : answers)
            text += dump(each);
        return text;
    }

    static QString dump(const Element &element)
    {
        QString text = '<' + element.name;
        for (const Element::Attribute &each : element.attributes)
            text += ' ' + each.name + '=' + each.value;
        text += '>';
        for (const Element &each : element.children)
            text += each.isText() ? each.content : dump(each);
        return text + "</" + element.name + '>';
    }

    QMap<QString, Element> answers; ///< by the operation
    QMap<QString, QString> failures; ///< by the operation: "silent", "lost", "perhaps", "other", or a code
    QStringList sent; ///< all writes; with "?" repeatable ones, with "+" those of several elements
    int waiting = 0, mostReads = 0, mostWrites = 0; ///< at once

private:
    vms_sdk::CallResult resultOf(const Element &request)
    {
        vms_sdk::CallResult result;
        const QString failure = failures.value(request.name);
        const bool isRead = request.name.startsWith("Get");
        result.mayBeDone = failure == "perhaps";
        if (failure == "perhaps" || failure == "lost")
            result.trouble = "connection closed";
        else if (failure == "other")
            result.answer = answers.first();
        else if (!failure.isEmpty() || (isRead && !answers.contains(request.name)))
            result.fault = vms_sdk::SoapFault{
                {"Receiver", isRead && failure.isEmpty() ? "ActionNotSupported" : failure}, "No\x1b[31m way"};
        else if (isRead)
            result.answer = answers.value(request.name);
        else
            result.answer = taken(request);
        return result;
    }

    Element taken(const Element &request)
    {
        const QByteArray uri = request.namespaceUri.toLatin1();
        Element answer(uri.constData(), request.name.toLatin1().append("Response").constData());
        const QString list = "Get" + request.name.mid(request.name.startsWith("Set") ? 3 : 6);
        std::vector<Element> &held = answers[answers.contains(list) ? list : list + 's'].children;
        Element given = request.children.at(request.children.front().name == "VideoSourceToken" ? 1 : 0);
        if (request.name == "CreateOSD") {
            given.setAttribute("token", "new" + QString::number(++m_made));
            answer.append(Element(uri.constData(), "OSDToken", given.attribute("token")));
            given.name = "OSDs";
            held.push_back(given);
            return answer;
        }
        const QString token = request.name == "DeleteOSD" ? given.text() : given.attribute("token");
        const auto hasToken = [&token](const Element &each) { return each.attribute("token") == token; };
        const auto place = std::find_if(held.begin(), held.end(), hasToken);
        if (place == held.end())
            qFatal("nothing to change: %s", qPrintable(dump(request)));
        given.name = place->name;
        *place = given;
        if (request.name == "DeleteOSD")
            held.erase(place);
        return answer;
    }

    int m_made = 0;
};
