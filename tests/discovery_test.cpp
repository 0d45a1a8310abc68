#include "support/OrdaTest.h"

#include <QtNetwork>
#include <csignal>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/DiscoveryMessages.h>
#include <vms_client_sdk/onvif/OnvifDiscovery.h>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

QByteArray matchOf(const QString &endpoint, const QString &scopes, const QString &addresses)
{
    return "<d:ProbeMatch><w:EndpointReference><w:Address>" + endpoint.toUtf8()
         + "</w:Address></w:EndpointReference><d:Scopes MatchBy=\"x\">\n" + scopes.toUtf8() + " </d:Scopes><d:XAddrs> "
         + addresses.toUtf8() + "\n</d:XAddrs></d:ProbeMatch>";
}

QByteArray answerTo(const QString &messageId, const QByteArray &matches)
{
    return R"(<Envelope xmlns="http://www.w3.org/2003/05/soap-envelope"
        xmlns:d="http://schemas.xmlsoap.org/ws/2005/04/discovery"
        xmlns:w="http://schemas.xmlsoap.org/ws/2004/08/addressing"><Header><w:RelatesTo>)"
         + messageId.toUtf8() + " </w:RelatesTo></Header><Body><d:ProbeMatches>" + matches
         + "</d:ProbeMatches></Body></Envelope>";
}

/// Listens for probes on all interfaces of the test's network, and answers as a test says.
struct Responder : QObject
{
    struct Probe
    {
        QString id, type, interface;
    };

    explicit Responder(const std::function<void(const Probe &probe)> &answer = {})
    {
        if (!socket.bind(QHostAddress::AnyIPv4, 3702))
            qFatal("port 3702 is taken");
        for (const char *name : {"near0", "near1"})
            socket.joinMulticastGroup(QHostAddress("239.255.255.250"), QNetworkInterface::interfaceFromName(name));
        connect(&socket, &QUdpSocket::readyRead, this, [this, answer] {
            while (socket.hasPendingDatagrams()) {
                asker = socket.receiveDatagram();
                const QRegularExpression parts(
                    "xmlns:tds=\"http://www.onvif.org/ver10/device/wsdl\".*:MessageID>([^<]*)</.*"
                    ":Probe><(\\w+):Types>([^<]*)</\\2:Types>");
                const QRegularExpressionMatch match = parts.match(asker.data());
                probes.append({match.captured(1), match.captured(3),
                               QNetworkInterface::interfaceNameFromIndex(int(asker.interfaceIndex()))});
                if (answer)
                    answer(probes.constLast());
            }
        });
    }

    void send(const QByteArray &text, const QString &from = "127.0.0.5") const
    {
        QUdpSocket sender;
        QVERIFY(sender.bind(QHostAddress(from)));
        QCOMPARE(sender.writeDatagram(text, asker.senderAddress(), quint16(asker.senderPort())), text.size());
    }

    QVector<Probe> probes;
    QUdpSocket socket;
    QNetworkDatagram asker;
};

/// A search, and what it has told.
struct Search
{
    OnvifDiscovery discovery;
    QSignalSpy found{&discovery, &OnvifDiscovery::found}, finished{&discovery, &OnvifDiscovery::finished};
};

} // namespace

/// Searching the network for cameras, in a network of the test's own.
class DiscoveryTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        if (QByteArray(QTest::currentTestFunction()).startsWith("what"))
            return; // they need no network
        if (!QNetworkInterface::interfaceFromName("near1").isValid())
            QSKIP("a network of its own is not allowed here");
    }

    void whatIsTakenOfAnAnswer_data()
    {
        columns<QString, QString, QString>({"scopes", "addresses", "expected"});
        rowsFrom("probe_answers.txt");
    }

    void whatIsTakenOfAnAnswer()
    {
        QFETCH(QString, scopes);
        QFETCH(QString, addresses);
        QFETCH(QString, expected);
        const QByteArray datagram =
            scopes.startsWith("raw") ? scopes.mid(4).toUtf8() : answerTo("1", matchOf(" urn:2 ", scopes, addresses));
        const ProbeAnswer answer = readProbeAnswer(datagram, "10.0.0.1");
        QString taken = answer.error;
        for (const FoundCamera &camera : answer.cameras) {
            QStringList urls;
            for (const QUrl &url : camera.addresses)
                urls.append(url.toString());
            QCOMPARE(answer.relatesTo + camera.endpoint, QString("1urn:2"));
            taken += QStringList{camera.name, camera.hardware, camera.location, urls.join(' ')}.join("; ");
        }
        QCOMPARE(escaped(taken).replace(QChar(0xfffd), "\\ufffd"), expected);
    }

    void tellsEachCameraOnce()
    {
        Search search;
        Responder responder([&](const Responder::Probe &probe) {
            QVERIFY(responder.probes.size() <= 2 || !search.found.isEmpty()); // they are told as they come
            responder.send("garbage");
            responder.send(answerTo("urn:uuid:of-another", matchOf("urn:foreign", "", "http://127.0.0.5/")));
            for (const char *from : {"127.0.0.5", "127.0.0.6"})
                responder.send(answerTo(probe.id, matchOf("urn:1", "", "http://127.0.0.5/")), from);
            responder.send(answerTo(probe.id, matchOf("", "", "http://127.0.0.5:81/") + matchOf("urn:none", "", "")));
            responder.send(answerTo(probe.id, matchOf("urn:large", QString(60'000, 'x'), "http://127.0.0.5/")));
        });
        QCOMPARE(search.discovery.start("near0", 900ms), QString());
        QTRY_COMPARE(search.finished.count(), 1);
        QSet<QString> found;
        for (const QVariantList &told : qAsConst(search.found)) {
            const auto camera = told.at(0).value<FoundCamera>();
            found.insert(camera.endpoint + ' ' + camera.sender + (camera.isAtSender() ? "" : " elsewhere"));
        }
        QCOMPARE(search.found.size(), found.size()); // each once
        QCOMPARE(found, QSet<QString>({"http://127.0.0.5:81/ 127.0.0.5", "urn:1 127.0.0.5", "urn:1 127.0.0.6 elsewhere",
                                       "urn:large 127.0.0.5"}));
        QMap<QString, QString> asked; // by id
        for (const Responder::Probe &probe : qAsConst(responder.probes))
            asked[probe.id] += probe.type + ' ';
        // Each thrice: a datagram may be lost.
        QCOMPARE(
            QSet<QString>(asked.begin(), asked.end()),
            QSet<QString>({QString("dn:NetworkVideoTransmitter ").repeated(3), QString("tds:Device ").repeated(3)}));
    }

    void asksOnTheInterfacesThatAreMeant()
    {
        const Responder responder;
        QCOMPARE(OnvifDiscovery::interfaces(), QStringList({"near0", "near1"}));
        Search search;
        QCOMPARE(search.discovery.start("near1", 60s), QString());
        QTRY_COMPARE(responder.probes.size(), 2);
        QCOMPARE(responder.probes.at(0).interface + responder.probes.at(1).interface, QString("near1near1"));
        search.discovery.stop();
        search.discovery.stop();
        QCOMPARE(search.finished.count(), 1);
        QCOMPARE(search.discovery.start({}, 60s), QString());
        QTRY_COMPARE(responder.probes.size(), 6);
        QVERIFY(responder.probes.at(2).interface != responder.probes.at(4).interface);
        QCOMPARE(search.discovery.start({}, 60s), QString()); // ends the one before
        QCOMPARE(search.finished.count(), 2);
        QVERIFY(search.discovery.start("eth77", 1s).contains("\"eth77\"; these can be searched: near0, near1"));
        QVERIFY(search.discovery.start("far0", 1s).contains("\"far0\" cannot be searched")); // it has no address
        QCOMPARE(search.finished.count(), 3);
    }

    void takesNoMoreThanAnyNetworkHas()
    {
        Search search;
        const Responder responder;
        QCOMPARE(search.discovery.start("near0", 60s), QString());
        QTRY_VERIFY(!responder.probes.isEmpty());
        for (int number = 0; number < 11'000;) {
            QByteArray matches;
            for (int i = 0; i < 200; ++i)
                matches += matchOf(QString("urn:%1").arg(++number), "", "http://127.0.0.5/");
            responder.send(answerTo(responder.probes.at(0).id, matches));
            QTRY_COMPARE(search.found.size(), std::min(number, 10'000));
        }
        QCoreApplication::processEvents();
        QCOMPARE(search.found.size(), 10'000);
    }

    void batchPrintsThem_data()
    {
        columns<QString, int, QString, QString>({"arguments", "exitCode", "output", "errors"});
        row("json", "1 --format json", 0, R"("id":"onvif-127.0.0.5")", "");
        row("csv", "1 --format csv", 0, "urn:1,'=Gate\u202e,D1,,http://127.0.0.5/a,127.0.0.5\r\n", "");
        row("table", "1 --interface near0", 0, "=Gate\\u202e           D1  ", "");
        row("elsewhere", "1", 0, "127.0.0.6 says that it is at http://127.0.0.5/a\n", "");
        row("nobody", "1 --interface lo", 0, "", "no camera has answered on lo\n");
        row("no interface", "1 --interface eth77", 3, "", "\"eth77\"");
        row("interrupted", "60 --format json", 6, R"("id":"onvif-127.0.0.5-2")", "interrupted\n");
    }

    void batchPrintsThem()
    {
        QFETCH(QString, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        QFETCH(QString, errors);
        QProcess batch;
        Responder responder([&](const Responder::Probe &probe) {
            const QString scopes = "onvif://www.onvif.org/name/=Gate%E2%80%AE onvif://www.onvif.org/hardware/D1";
            for (const char *from : {"127.0.0.5", "127.0.0.6"})
                responder.send(answerTo(probe.id, matchOf("urn:1", scopes, "http://127.0.0.5/a")), from);
        });
        batch.start(QCoreApplication::applicationDirPath() + "/orda_batch",
                    ("discover --timeout " + arguments).split(' '));
        QByteArray printed;
        QTRY_VERIFY(exitCode != 6 || (printed += batch.readAllStandardOutput()).count('\n') == 2);
        if (exitCode == 6)
            ::kill(pid_t(batch.processId()), SIGINT);
        QTRY_COMPARE(batch.state(), QProcess::NotRunning);
        printed += batch.readAllStandardOutput();
        const QString told = batch.readAllStandardError();
        QVERIFY2(batch.exitCode() == exitCode && QString(printed).contains(output), printed + told.toUtf8());
        QVERIFY2(errors.isEmpty() ? told.isEmpty() : told.contains(errors), qPrintable(told));
    }
};

/// Runs itself in a network of its own, where that is allowed: the real one is not to be searched.
int main(int argc, char *argv[])
{
    const char again[] = R"(unshare -rn true 2>/dev/null && exec unshare -rn sh -c 'ip link set lo up; for n in 0 1; do
        ip link add near$n type veth peer name far$n; ip link set near$n up; ip link set far$n up
        ip addr add 10.77.$n.1/24 dev near$n; done; exec "$0" "$@"' "$0" "$@"; exec "$0" "$@")";
    std::vector<const char *> arguments{"sh", "-c", again};
    arguments.insert(arguments.end(), argv, argv + argc + 1); // with its null
    if (!qEnvironmentVariableIsSet("ORDA_TEST_AGAIN") && qputenv("ORDA_TEST_AGAIN", "1"))
        ::execv("/bin/sh", const_cast<char **>(arguments.data()));
    qputenv("QT_NO_GLIB", "1");
    const QApplication app(argc, argv);
    DiscoveryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "discovery_test.moc"
