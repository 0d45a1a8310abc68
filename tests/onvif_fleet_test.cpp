#include "support/FleetOf.h"
#include "support/OrdaTest.h"

#include "fleet/EmbeddedFleet.h"
#include "fleet/onvif/CameraMaker.h"

#include <vms_client_sdk/onvif/DigestAuth.h>
#include <vms_client_sdk/onvif/HttpExchanges.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

#include <QtNetwork>

using namespace device_fleet;
using namespace vms_sdk;
using namespace vms_sdk::onvif;
using namespace std::chrono_literals;

namespace {

/// A fleet of seed 1 up to its first camera that has what is wanted, and a client of that camera.
struct Site
{
    explicit Site(const std::function<bool(const CameraState &)> &isWanted)
    {
        int index = 0;
        while (!isWanted(state = makeSiteCamera(1, index).state))
            ++index;
        fleet = std::make_unique<EmbeddedFleet>(fleetOf(0, 1, index + 1));
        fleet->start();
        device = fleet->inventory().at(index);
    }

    HttpAnswer post(const QByteArray &body, const QString &path, const QByteArray &authorization = {})
    {
        const QUrl url(QString("http://%1:%2%3").arg(device.ip).arg(device.port).arg(path));
        std::optional<HttpAnswer> got;
        exchanges.post({url, body, {}, authorization, {}}, &owner, [&got](const HttpAnswer &answer) { got = answer; });
        while (!got)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return *got;
    }

    QByteArray withToken(const XmlElement &operation) const
    {
        const QDateTime now = QDateTime::currentDateTimeUtc().addSecs(state.traits.clockOffset.count());
        return soapRequest(operation, makeUsernameToken(device.userName, device.password, now));
    }

    /// Signs on as the camera asks.
    SoapAnswer call(const XmlElement &operation)
    {
        const QString path = state.paths.value(operation.namespaceUri);
        HttpAnswer answer = post(soapRequest(operation), path);
        auto auth = DigestAuth::fromChallenges(answer.challenges);
        if (auth)
            answer = post(soapRequest(operation), path,
                          auth->authorization(device.userName, device.password, path.toUtf8()));
        else if (answer.status != 200)
            answer = post(withToken(operation), path);
        return readSoapAnswer(answer.body);
    }

    CameraState state;
    std::unique_ptr<EmbeddedFleet> fleet;
    DevInfo device;
    QObject owner;
    HttpExchanges exchanges{HttpLimits{500ms, 500ms}};
};

/// What differs between two dumps: "member: before -> after".
QStringList differences(const QJsonObject &before, const QJsonObject &after)
{
    QStringList all, keys = before.keys() + after.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        const QJsonValue a = before.value(key), b = after.value(key);
        if (a.isObject() && b.isObject())
            all += differences(a.toObject(), b.toObject());
        else if (a != b)
            all << QString("%1: %2 -> %3").arg(key, a.toString("none"), b.toString("none"));
    }
    return all;
}

/// "Resolution/Width=1921" and "@token=x" set what is there.
void change(XmlElement *element, const QString &how)
{
    const QStringList names = how.section('=', 0, 0).split('/');
    const QString value = how.section('=', 1);
    if (how.startsWith("@token"))
        return element->setAttribute("token", value);
    for (const QString &name : names)
        element = &*std::find_if(element->children.begin(), element->children.end(),
                                 [&name](const XmlElement &each) { return each.name == name; });
    element->setText(value);
}

} // namespace

class OnvifFleetTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void camerasOfASeedAreTheSameBesideDevices()
    {
        EmbeddedFleet both(fleetOf(4, 1, 60)), cameras(fleetOf(0, 1, 60)), devices(fleetOf(4));
        QCOMPARE(both.start() + cameras.start() + devices.start(), QString());
        QCOMPARE(differences(cameras.dump(), both.dump()).size(), 4);
        QCOMPARE(differences(devices.dump(), both.dump()).size(), 60);
        for (int i = 0; i < 30; ++i) { // all kinds of sign-on, styles, paths and manners of HTTP are among them
            Site site([i](const CameraState &camera) { return camera.deviceId == makeSiteCamera(1, i).info.id; });
            const SoapAnswer answer = site.call(XmlElement(tds, "GetDeviceInformation"));
            QCOMPARE(answer.body.textOf(tds, "SerialNumber"), site.state.serialNumber);
        }
    }

    void wrongAccountIsRefused_data()
    {
        columns<QString>({"mistake"});
        row("digest, wrong password", "password");
        row("token, Created two minutes off", "clock");
        row("token, sent again", "again");
    }

    void wrongAccountIsRefused()
    {
        QFETCH(QString, mistake);
        const bool isDigest = mistake == "password";
        Site site([isDigest](const CameraState &camera) { return camera.traits.takesDigest == isDigest; });
        int refused = 0;
        connect(site.fleet.get(), &EmbeddedFleet::signOnRefused, &site.owner, [&refused] { ++refused; });
        const XmlElement operation(tds, "GetScopes");
        const QByteArray body = site.withToken(operation);
        site.device.password += isDigest ? "x" : "";
        site.state.traits.clockOffset -= mistake == "clock" ? 120s : 0s;
        QVERIFY(mistake != "again" || site.post(body, site.device.path).status == 200);
        const SoapAnswer answer =
            mistake == "again" ? readSoapAnswer(site.post(body, site.device.path).body) : site.call(operation);
        QVERIFY(answer.fault && answer.fault->is("NotAuthorized"));
        QTRY_COMPARE(refused, 1);
    }

    void aSetChangesWhatItSaysUnlessAFaultSpoilsIt_data()
    {
        columns<QString, QString, QString, QString, QString>({"media", "changes", "fault", "answered", "differs"});
        rowsFrom("onvif_sets.txt");
    }

    void aSetChangesWhatItSaysUnlessAFaultSpoilsIt()
    {
        QFETCH(QString, media);
        QFETCH(QString, changes);
        QFETCH(QString, fault);
        Site site([&media](const CameraState &camera) {
            const XmlElement &encoder = camera.configurations.at(videoEncoderKind).back().element;
            return camera.traits.hasMedia2 == (media != "ver10") && camera.profiles.size() == 2
                && encoder.children.back().name == "Analytics" && camera.traits.style == XmlStyle::DefaultNamespaces;
        });
        const char *const service = media == "ver20" ? tr2 : trt;
        const SoapAnswer read = site.call(XmlElement(service, "GetVideoEncoderConfigurations"));
        XmlElement operation(service, "SetVideoEncoderConfiguration");
        operation.append(read.body.children.back()).name = "Configuration";
        const QStringList words = changes.split(' ');
        for (const QString &word : words)
            change(&operation.children.back(), word);
        if (const int number = FaultPlan::faultNames().indexOf(fault.section(' ', 0, 0)); number >= 0)
            site.fleet->setFault("*", operation.name,
                                 {Fault(number), -5, 200ms, ReturnWith(fault.section(' ', 1).toInt())});
        const QJsonObject before = site.fleet->dump();
        const SoapAnswer answer = site.call(operation);
        const QString seen = answer.fault ? answer.fault->codes.last() : answer.body.name + answer.error;
        QFETCH(QString, answered);
        QVERIFY2(seen.contains(answered), qPrintable(seen));
        QTEST(differences(before, site.fleet->dump()).join(", ").simplified(), "differs");
        QTRY_COMPARE(site.post(soapRequest(XmlElement(tds, "GetHostname")), site.device.path).status, 200);
    }

    void connectionsAreUsedAsHttpHasIt_data()
    {
        columns<QString, QString>({"sent", "answer"});
        const QString head = "POST PATH HTTP/1.1\r\n", whole = head + "Content-Length: SIZE\r\n\r\nBODY";
        row("three at once", whole + whole + whole, "HTTP/1.1 200 3");
        row("the client's last", QString(whole).replace("Con", "Connection: close\r\nCon"), "HTTP/1.1 200 1 closed");
        row("in chunks", head + "Transfer-Encoding: chunked\r\n\r\nHEX;x=y\r\nBODY\r\n0\r\nX: y\r\n\r\n",
            "HTTP/1.1 200 1");
        row("too long", head + "Content-Length: 2000000\r\n\r\n", "HTTP/1.1 413 1 closed");
        row("off line", whole, " 0 closed");
    }

    void connectionsAreUsedAsHttpHasIt()
    {
        QFETCH(QString, sent);
        Site site([](const CameraState &camera) { return !camera.traits.closesAfterAnswer; });
        site.fleet->setOnline(site.device.id, QTest::currentDataTag() != QString("off line"));
        const QByteArray body = soapRequest(XmlElement(tds, "GetHostname"));
        sent.replace("PATH", site.device.path).replace("SIZE", QString::number(body.size())).replace("BODY", body);
        QTcpSocket socket;
        socket.connectToHost(site.device.ip, site.device.port);
        socket.write(sent.replace("HEX", QString::number(body.size(), 16)).toUtf8());
        QByteArray got;
        while (socket.waitForReadyRead(got.isEmpty() ? 2000 : 100))
            got += socket.readAll();
        const bool isClosed = socket.state() == QAbstractSocket::UnconnectedState;
        QTEST(QString("%1 %2").arg(QString(got.left(12))).arg(got.count("HTTP/1.1")) + (isClosed ? " closed" : ""),
              "answer");
    }
};

ORDA_TEST_MAIN(OnvifFleetTest)
#include "onvif_fleet_test.moc"
