#include "support/OrdaTest.h"

#include <QtNetwork>
#include <csignal>
#include <unistd.h>
#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/onvif/DiscoveryMessages.h>
#include <vms_client_sdk/onvif/OnvifDiscovery.h>
#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/XmlElement.h>

using namespace vms_sdk;
using namespace std::chrono_literals;

namespace {

bool hasNetwork()
{
    return QNetworkInterface::interfaceFromName("near1").isValid();
}

QByteArray matchOf(const QString &endpoint, const QString &scopes, const QString &addresses)
{
    return QString("<d:ProbeMatch><w:EndpointReference><w:Address>%1</w:Address></w:EndpointReference>"
                   "<d:Scopes MatchBy=\"x\">\n%2 </d:Scopes><d:XAddrs> %3\n</d:XAddrs></d:ProbeMatch>")
        .arg(endpoint, scopes, addresses)
        .toUtf8();
}

QByteArray answerTo(const QString &messageId, const QByteArray &matches)
{
    return "<?xml version=\"1.0\"?><Envelope xmlns=\"http://www.w3.org/2003/05/soap-envelope\" xmlns:d=\""
         + QByteArray(onvif::wsdd) + "\" xmlns:w=\"" + onvif::wsa + "\"><Header><w:RelatesTo>" + messageId.toUtf8()
         + " </w:RelatesTo></Header><Body><d:ProbeMatches>" + matches + "</d:ProbeMatches></Body></Envelope>";
}

/// Listens for probes on all interfaces of the test's network, and answers as a test says.
class Responder : public QObject
{
public:
    struct Probe
    {
        QString id, type, interface;
    };
    using Answer = std::function<void(const Probe &probe)>;

    explicit Responder(const Answer &answer = {})
    {
        if (!m_socket.bind(QHostAddress::AnyIPv4, 3702))
            qFatal("port 3702 is taken");
        for (const char *name : {"near0", "near1"})
            m_socket.joinMulticastGroup(QHostAddress("239.255.255.250"), QNetworkInterface::interfaceFromName(name));
        connect(&m_socket, &QUdpSocket::readyRead, this, [this, answer] {
            while (m_socket.hasPendingDatagrams()) {
                const QNetworkDatagram datagram = m_socket.receiveDatagram();
                const XmlElement root = *readXml(datagram.data()).root;
                const QString type = root.children.at(1).children.at(0).textOf(onvif::wsdd, "Types");
                QString resolved;
                for (const auto &declared : root.declarations)
                    if (type.startsWith(declared.prefix + ':'))
                        resolved = declared.namespaceUri + type.mid(declared.prefix.size());
                probes.append({root.children.at(0).textOf(onvif::wsa, "MessageID"), resolved,
                               QNetworkInterface::interfaceNameFromIndex(int(datagram.interfaceIndex()))});
                m_asker = datagram;
                if (answer)
                    answer(probes.constLast());
            }
        });
    }

    void send(const QByteArray &text, const QString &from = "127.0.0.5") const
    {
        QUdpSocket socket;
        QVERIFY(socket.bind(QHostAddress(from)));
        QCOMPARE(socket.writeDatagram(text, m_asker.senderAddress(), quint16(m_asker.senderPort())), text.size());
    }

    QVector<Probe> probes;

private:
    QUdpSocket m_socket;
    QNetworkDatagram m_asker;
};

/// A search, and what it has told.
struct Search
{
    Search()
    {
        QObject::connect(&discovery, &OnvifDiscovery::found, &discovery, [this](const FoundCamera &camera) {
            found.append(camera.endpoint + ' ' + camera.sender + (camera.isAtSender() ? "" : " elsewhere"));
        });
    }
    OnvifDiscovery discovery;
    QStringList found;
    QSignalSpy finished{&discovery, &OnvifDiscovery::finished};
};

} // namespace

/// Searching the network for cameras, in a network of the test's own.
class DiscoveryTest : public OrdaTest
{
    Q_OBJECT

private slots:
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
        QString hundred, many;
        for (int i = 0; i < 100; ++i) {
            hundred += QString("onvif://www.onvif.org/name/n%1 ").arg(i);
            many += QString("http://10.0.1.%1 ").arg(i);
        }
        scopes.replace("LONG", QString(257, 'a')).replace("HUNDRED", hundred);
        addresses.replace("LONG", QString(250, 'a')).replace("MANY", many);
        const ProbeAnswer answer =
            readProbeAnswer(answerTo("urn:uuid:1", matchOf(" urn:2 ", scopes, addresses)), "10.0.0.1");
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.relatesTo, QString("urn:uuid:1"));
        QString taken;
        for (const FoundCamera &camera : answer.cameras) {
            QStringList urls;
            for (const QUrl &url : camera.addresses)
                urls.append(url.toString());
            QCOMPARE(camera.endpoint, QString("urn:2"));
            taken += QStringList{camera.name, camera.hardware, camera.location, urls.join(' ')}.join("; ");
        }
        QCOMPARE(escaped(taken).replace(QChar(0xfffd), "\\ufffd"), expected);
    }

    void whatIsNoAnswer_data()
    {
        columns<QByteArray>({"datagram"});
        const QByteArray good = answerTo("urn:1", matchOf("urn:2", "", "http://10.0.0.1"));
        row("nothing", QByteArray());
        row("garbage", QByteArray("\x00\xff<<<>", 6));
        row("half of one", good.left(good.size() / 2));
        row("a document type", QByteArray(good).replace("<Envelope", "<!DOCTYPE a [<!ENTITY b \"c\">]><Envelope"));
        row("another version of SOAP",
            QByteArray(good).replace("www.w3.org/2003/05/soap-envelope", "schemas.xmlsoap.org/soap/envelope/"));
        row("a probe", probeMessages({"urn:1", "urn:2"}).at(0));
        row("nested deeply",
            QByteArray(good).replace("<d:ProbeMatches>", "<d:ProbeMatches>" + QByteArray("<a>").repeated(100)
                                                             + QByteArray("</a>").repeated(100)));
    }

    void whatIsNoAnswer()
    {
        QFETCH(QByteArray, datagram);
        const ProbeAnswer answer = readProbeAnswer(datagram, "10.0.0.1");
        QVERIFY(!answer.error.isEmpty() && answer.cameras.isEmpty());
    }

    void tellsEachCameraOnce()
    {
        if (!hasNetwork())
            QSKIP("a network of its own is not allowed here");
        Search search;
        bool hasBegun = false;
        Responder responder([&](const Responder::Probe &probe) {
            if (hasBegun)
                QVERIFY(!search.found.isEmpty()); // as it came
            responder.send("garbage");
            responder.send(answerTo("urn:uuid:of-another", matchOf("urn:foreign", "", "http://127.0.0.5/")));
            for (const char *from : {"127.0.0.5", "127.0.0.6"})
                responder.send(answerTo(probe.id, matchOf("urn:1", "", "http://127.0.0.5/")), from);
            responder.send(answerTo(probe.id, matchOf("", "", "http://127.0.0.5:81/") + matchOf("urn:none", "", "")));
            responder.send(answerTo(probe.id, matchOf("urn:large", QString(60'000, 'x'), "http://127.0.0.5/")));
            hasBegun = hasBegun || !search.found.isEmpty();
        });
        QCOMPARE(search.discovery.start("near0", 900ms), QString());
        QVERIFY(search.found.isEmpty());
        QTRY_COMPARE(search.finished.count(), 1);
        search.found.sort();
        QCOMPARE(search.found, QStringList({"http://127.0.0.5:81/ 127.0.0.5", "urn:1 127.0.0.5",
                                            "urn:1 127.0.0.6 elsewhere", "urn:large 127.0.0.5"}));
        QMap<QString, int> times;
        for (const Responder::Probe &probe : qAsConst(responder.probes))
            ++times[probe.id + ' ' + probe.type];
        QCOMPARE(times.values(), QList<int>({3, 3})); // a datagram may be lost
        const QString types = times.keys().join(' ');
        QVERIFY2(types.contains("http://www.onvif.org/ver10/device/wsdl Device")
                     && types.contains("http://www.onvif.org/ver10/network/wsdl NetworkVideoTransmitter"),
                 qPrintable(types));
        QCOMPARE(search.discovery.start("near0", 300ms), QString()); // all is told anew
        QTRY_COMPARE(search.finished.count(), 2);
        QCOMPARE(search.found.size(), 8);
    }

    void asksOnTheInterfacesThatAreMeant()
    {
        if (!hasNetwork())
            QSKIP("a network of its own is not allowed here");
        const Responder responder;
        QCOMPARE(OnvifDiscovery::interfaces(), QStringList({"near0", "near1"}));
        const QMap<QString, QStringList> meant{{"near1", {"near1"}}, {"", {"near0", "near1"}}};
        for (auto each = meant.begin(); each != meant.end(); ++each) {
            Search search;
            const int before = responder.probes.size();
            QCOMPARE(search.discovery.start(each.key(), 60s), QString());
            QTRY_VERIFY(responder.probes.size() >= before + 2 * each.value().size());
            search.discovery.stop();
            search.discovery.stop();
            QCOMPARE(search.finished.count(), 1);
            QStringList asked;
            for (int i = before; i < responder.probes.size(); ++i)
                asked.append(responder.probes.at(i).interface);
            asked.sort();
            asked.removeDuplicates();
            QCOMPARE(asked, each.value());
        }
        Search search;
        QVERIFY(search.discovery.start("eth77", 1s).contains("\"eth77\"; these can be searched: near0, near1"));
        QVERIFY(search.discovery.start("far0", 1s).contains("\"far0\" cannot be searched")); // it has no address
        QCOMPARE(search.finished.count(), 0);
    }

    void takesNoMoreThanAnyNetworkHas()
    {
        if (!hasNetwork())
            QSKIP("a network of its own is not allowed here");
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
        search.discovery.stop();
        QCOMPARE(search.found.size(), 10'000);
    }

    void batchPrintsThem_data()
    {
        columns<QString, int, QString, QString>({"arguments", "exitCode", "output", "errors"});
        row("json", "--format json", 0, R"("id":"onvif-127.0.0.5")", "");
        row("csv", "--format csv", 0, "urn:1,'=Gate\u202e,D1,,http://127.0.0.5/a,127.0.0.5\r\n", "");
        row("table", "--interface near0", 0,
            "=Gate\\u202e            D1                                          http://127.0.0.5/a\n", "");
        row("elsewhere", "", 0, "127.0.0.6 says that it is at http://127.0.0.5/a\n", "");
        row("nobody", "--interface lo", 0, "", "no camera has answered on lo\n");
        row("no interface", "--interface eth77", 3, "", "\"eth77\"");
        row("too long", "--timeout 61", 2, "", "from 1 to 60");
        row("no meaning", "--demo 3", 2, "", "--demo has no meaning");
        row("interrupted", "--timeout 60 --format json", 6, R"("id":"onvif-127.0.0.5-2")", "interrupted\n");
    }

    void batchPrintsThem()
    {
        if (!hasNetwork())
            QSKIP("a network of its own is not allowed here");
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
        const QStringList usual = arguments.contains("--timeout") ? QStringList() : QStringList{"--timeout", "1"};
        batch.start(QCoreApplication::applicationDirPath() + "/orda_batch",
                    QStringList{"discover"} + usual + arguments.split(' ', Qt::SkipEmptyParts));
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
