#pragma once

#include <vms_client_sdk/onvif/CameraCalls.h>
#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QFile>
#include <QMap>
#include <QTimer>
#include <QtTest>

/// A camera in memory: it answers with what is in a file of tests/cases, and takes what is set. Requests pass as text.
class CameraInMemory : public vms_sdk::CameraCalls
{
public:
    using Element = vms_sdk::XmlElement;

    /// @param setup a file's name, and what is replaced in its text before it is read: "onvif_media.xml; JPEG => H264"
    explicit CameraInMemory(const QString &setup)
    {
        const QStringList parts = setup.split("; ");
        QFile file(QFINDTESTDATA("../cases") + '/' + parts.constFirst());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
        const vms_sdk::XmlRead read = vms_sdk::readXml(replaced(file.readAll(), parts.mid(1)).toUtf8());
        if (!read.root)
            qFatal("%s: %s", qPrintable(setup), qPrintable(read.error));
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
        const bool isMedia = service == vms_sdk::OnvifService::Media;
        return isMedia2 || (isMedia && answers.contains("GetProfiles")) || service == vms_sdk::OnvifService::Device;
    }

    void call(vms_sdk::OnvifService, const Element &operation, bool isRepeatable, QObject *owner,
              const Done &done) override
    {
        const Element request = *vms_sdk::readXml(vms_sdk::writeXml(operation)).root;
        const bool isRead = request.name.startsWith("Get");
        if (isRepeatable != isRead)
            qFatal("%s: may it be repeated?", qPrintable(request.name));
        mostWaiting = qMax(mostWaiting, ++waiting);
        if (!isRead) {
            sent.append(request);
            mostWritesWaiting = qMax(mostWritesWaiting, waiting);
        }
        QTimer::singleShot(0, owner, [this, request, done] {
            --waiting;
            if (request.name != silentAt)
                done(resultOf(request));
        });
    }

    /// Everything that the camera holds, without prefixes.
    QString dump() const
    {
        QString text;
        for (const Element &each : answers)
            text += dump(each) + '\n';
        return text;
    }

    static QString dump(const Element &element)
    {
        if (element.isText())
            return element.content;
        QString text = '<' + element.name;
        for (const Element::Attribute &each : element.attributes)
            text += ' ' + each.name + '=' + each.value;
        text += '>';
        for (const Element &each : element.children)
            text += dump(each);
        return text + "</" + element.name + '>';
    }

    QMap<QString, Element> answers; ///< by the operation
    QList<Element> sent; ///< all writes
    QMap<QString, vms_sdk::CallResult> failures; ///< by the operation
    QString silentAt; ///< an operation that is never answered
    int waiting = 0, mostWaiting = 0, mostWritesWaiting = 0;

private:
    vms_sdk::CallResult resultOf(const Element &request)
    {
        if (failures.contains(request.name))
            return failures.value(request.name);
        vms_sdk::CallResult result;
        if (request.name.startsWith("Get") && answers.contains(request.name))
            result.answer = answers.value(request.name);
        else if (request.name.startsWith("Get"))
            result.fault = vms_sdk::SoapFault{{"Receiver", "ActionNotSupported"}, "Not here"};
        else
            take(request, &result);
        return result;
    }

    void take(const Element &request, vms_sdk::CallResult *result)
    {
        const QByteArray uri = request.namespaceUri.toLatin1();
        result->answer = Element(uri.constData(), request.name.toLatin1().append("Response").constData());
        QString list = "Get" + request.name.mid(request.name.startsWith("Set") ? 3 : 6);
        list += answers.contains(list) ? "" : "s";
        std::vector<Element> &held = answers[list].children;
        const auto find = [&held](const QString &token) {
            return std::find_if(held.begin(), held.end(),
                                [&token](const Element &each) { return each.attribute("token") == token; });
        };
        if (request.name == "DeleteOSD") {
            held.erase(find(request.textOf(uri.constData(), "OSDToken")));
            return;
        }
        const auto isOurs = [](const Element &each) { return each.name != "VideoSourceToken"; };
        Element taken = *std::find_if(request.children.begin(), request.children.end(), isOurs);
        if (request.name == "CreateOSD") {
            taken.setAttribute("token", "new" + QString::number(++m_made));
            result->answer.append(Element(uri.constData(), "OSDToken", taken.attribute("token")));
            taken.name = "OSDs";
            held.push_back(taken);
            return;
        }
        const auto place = find(taken.attribute("token"));
        QVERIFY2(place != held.end(), qPrintable(dump(request)));
        taken.name = place->name;
        *place = taken;
    }

    int m_made = 0;
};
