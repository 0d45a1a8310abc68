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

    QByteArray digest(const QByteArrayList &challenges, const QString &path) const
    {
        auto auth = DigestAuth::fromChallenges(challenges);
        return auth ? auth->authorization(device.userName, device.password, path.toUtf8()) : QByteArray();
    }

    UsernameToken token(int secondsOff = 0) const
    {
        const QDateTime now = QDateTime::currentDateTimeUtc().addSecs(state.traits.clockOffset.count() + secondsOff);
        return makeUsernameToken(device.userName, device.password, now);
    }

    /// Signs on as the camera asks.
    SoapAnswer call(const XmlElement &operation)
    {
        const QString path = state.paths.value(operation.namespaceUri);
        HttpAnswer answer = post(soapRequest(operation), path);
        if (answer.status != 200)
            answer = post(soapRequest(operation, token()), path, digest(answer.challenges, path));
        return readSoapAnswer(answer.body);
    }

    int index = 0;
    CameraState state;
    std::unique_ptr<EmbeddedFleet> fleet;
    DevInfo device;
    QObject owner;
    HttpExchanges exchanges{HttpLimits{500ms, 500ms}};
};

/// What differs between two dumps: "member: before -> after".
QStringList differences(const QJsonObject &before, const QJsonObject &after)
{
    QStringList all;
    QStringList keys = before.keys() + after.keys();
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

/// "Resolution/Width=1921" and "@token=x" set what is there, "-Quality" takes an element out.
void change(XmlElement *element, const QString &how)
{
    const QString path = how.section('=', 0, 0), value = how.section('=', 1);
    auto &children = element->children;
    if (how.startsWith('-'))
        children.erase(
            std::find_if(children.begin(), children.end(), [&](auto &each) { return "-" + each.name == how; }));
    else if (how.startsWith('@'))
        element->setAttribute(qPrintable(path.mid(1)), value);
    else
        element->child(tt, qPrintable(path.section('/', 0, 0)))
            ->child(tt, qPrintable(path.section('/', 1)))
            ->setText(value);
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
        QVERIFY(makeSiteCamera(2, 0).state.serialNumber != makeSiteCamera(1, 0).state.serialNumber);
        for (int i = 0; i < 30; ++i) { // all kinds of sign-on, styles, paths and manners of HTTP are among them
            Site site([i](const CameraState &camera) { return camera.deviceId == makeSiteCamera(1, i).info.id; });
            const SoapAnswer answer = site.call(XmlElement(tds, "GetDeviceInformation"));
            QCOMPARE(answer.body.textOf(tds, "SerialNumber"), site.state.serialNumber);
        }
    }

    void wrongAccountIsRefused_data()
    {
        columns<int>({"refusals"});
        row("digest, wrong password", 1);
        row("digest for another path", 1);
        row("digest, nonce never given out", 0);
        row("token, wrong password", 1);
        row("token, Created two minutes off", 1);
        row("token, sent again", 1);
    }

    void wrongAccountIsRefused()
    {
        const QString how = QTest::currentDataTag();
        const bool isToken = how.startsWith("token");
        Site site([isToken](const CameraState &camera) { return camera.traits.takesDigest != isToken; });
        QAtomicInt refused;
        connect(
            site.fleet.get(), &EmbeddedFleet::signOnRefused, &site.owner, [&] { ++refused; }, Qt::DirectConnection);
        QByteArray body = soapRequest(XmlElement(tds, "GetScopes"));
        QByteArrayList asked = site.post(body, site.device.path).challenges;
        site.device.password += how.endsWith("password") ? "x" : "";
        if (how.contains("nonce"))
            asked = {R"(Digest realm="camera", qop="auth", nonce="eA==")"};
        const QByteArray authorization = site.digest(asked, how.endsWith("path") ? "/other" : site.device.path);
        if (isToken)
            body = soapRequest(XmlElement(tds, "GetScopes"), site.token(how.endsWith("off") ? -120 : 0));
        if (how.endsWith("again"))
            QCOMPARE(site.post(body, site.device.path).status, 200);
        QVERIFY(readSoapAnswer(site.post(body, site.device.path, authorization).body).fault->is("NotAuthorized"));
        QTEST(int(refused), "refusals");
    }

    void aSetChangesWhatItSaysUnlessAFaultSpoilsIt_data()
    {
        columns<QString, QString, QString, QString>({"media", "changes", "answered", "differs"});
        rowsFrom("onvif_sets.txt");
    }

    void aSetChangesWhatItSaysUnlessAFaultSpoilsIt()
    {
        QFETCH(QString, media);
        QFETCH(QString, changes);
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
        for (const QString &word : words) {
            if (const int fault = FaultPlan::faultNames().indexOf(word.section(':', 0, 0)); fault >= 0)
                site.fleet->setFault("*", "SetVideoEncoderConfiguration",
                                     {Fault(fault), -5, 200ms, ReturnWith(word.section(':', 1).toInt())});
            else
                change(&operation.children.back(), word);
        }
        const QJsonObject before = site.fleet->dump();
        const SoapAnswer answer = site.call(operation);
        const QString seen = answer.fault ? answer.fault->codes.last() : answer.body.name + answer.error;
        QFETCH(QString, answered);
        QVERIFY2(seen.contains(answered), qPrintable(seen));
        QTEST(differences(before, site.fleet->dump()).join(", "), "differs");
        QTRY_COMPARE(site.post(soapRequest(XmlElement(tds, "GetHostname")), site.device.path).status, 200);
    }

    void connectionsAreUsedAsHttpHasIt_data()
    {
        columns<QString, QString>({"sent", "answer"});
        const QString head = "POST PATH HTTP/1.1\r\n", whole = head + "Content-Length: SIZE\r\n\r\nBODY";
        row("three at once", whole + whole + whole, "200 200 200 open");
        row("the client's last", QString(whole).replace("Con", "Connection: close\r\nCon"), "200 closed");
        row("in chunks", head + "Transfer-Encoding: chunked\r\n\r\nHEX;x=y\r\nBODY\r\n0\r\nX: y\r\n\r\n", "200 open");
        row("waits for leave", head + "Expect: 100-continue\r\nContent-Length: 9\r\n\r\n", "100 open");
        row("too long", head + "Content-Length: 2000000\r\n\r\n", "413 closed");
        row("chunk too long", head + "Transfer-Encoding: chunked\r\n\r\n200000\r\n", "413 closed");
        row("off line", whole, "closed");
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
        QString got, answer;
        while (socket.waitForReadyRead(got.isEmpty() ? 2000 : 100))
            got += socket.readAll();
        for (int i = got.indexOf("HTTP/1.1 "); i >= 0; i = got.indexOf("HTTP/1.1 ", i + 1))
            answer += got.midRef(i + 9, 4);
        QTEST(answer + (socket.state() == QAbstractSocket::UnconnectedState ? "closed" : "open"), "answer");
    }
};

ORDA_TEST_MAIN(OnvifFleetTest)
#include "onvif_fleet_test.moc"
