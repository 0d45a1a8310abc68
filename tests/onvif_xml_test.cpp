#include "support/TextTable.h"

#include <vms_client_sdk/onvif/OnvifNames.h>
#include <vms_client_sdk/onvif/SoapMessage.h>

using namespace vms_sdk;

namespace {

QByteArray passwordDigest(const QByteArray &nonce, const QString &created, const QByteArray &password)
{
    const QByteArray all = QByteArray::fromBase64(nonce) + created.toLatin1() + password;
    return QCryptographicHash::hash(all, QCryptographicHash::Sha1).toBase64();
}

/// Without the declaration in front.
QString written(const XmlElement &root)
{
    return QString::fromUtf8(writeXml(root)).section("?>", 1).trimmed();
}

} // namespace

class OnvifXmlTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void textsAreWrittenAsTheyCame_data() { readTable("xml_texts.txt", {"text", "result"}); }
    void textsAreWrittenAsTheyCame()
    {
        const QString text = valueOf("text"), result = valueOf("result");
        const XmlRead read = readXml(text.toUtf8());
        QCOMPARE(read.root.has_value(), read.error.isEmpty());
        const QString outcome = read.root ? written(*read.root) : read.error;
        QVERIFY2(outcome == (result == "same" ? text : result) || read.error.contains(result), qPrintable(outcome));
    }

    void answersAreReadOrRefused_data() { readTable("soap_answers.txt", {"text", "result"}); }
    void answersAreReadOrRefused()
    {
        QString text = valueOf("text");
        text.replace(QRegularExpression("^B"),
                     QString("<s:Envelope xmlns:s='%1' xmlns:x='urn:x'><s:Body>").arg(onvif::soapEnvelope));
        text.replace(QRegularExpression("E$"), "</s:Body></s:Envelope>");
        const SoapAnswer answer = readSoapAnswer(text.toUtf8());
        const QString outcome = answer.fault           ? answer.fault->text()
                              : answer.error.isEmpty() ? written(answer.body)
                                                       : answer.error;
        QVERIFY2(outcome == valueOf("result") || answer.error.contains(valueOf("result")), qPrintable(outcome));
    }

    void accountsAreShownWithoutThePassword()
    {
        // The example that the ONVIF standard's guide for programmers has.
        QCOMPARE(passwordDigest("LKqI6G/AikKCQrN0zqZFlg==", "2010-09-16T07:50:45Z", "userpassword"),
                 QByteArray("tuOSpGlFlIXsozq4HFNeeGeFLEI="));
        const QDateTime time = QDateTime::fromString("2010-09-16T09:50:45+02:00", Qt::ISODate);
        const UsernameToken token = makeUsernameToken("J<>", "p\u00e4", time);
        QCOMPARE(token.digest, passwordDigest(token.nonce, token.created, "p\u00e4"));
        QCOMPARE(QDateTime::fromString(token.created, Qt::ISODateWithMs), time.toUTC());
        QCOMPARE(QByteArray::fromBase64(token.nonce).size(), 16);
        QVERIFY(makeUsernameToken("J<>", "p\u00e4", time).nonce != token.nonce);
        const XmlRead request = readXml(soapRequest(XmlElement(onvif::tds, "GetUsers"), token));
        QVERIFY(request.root && request.root->child(onvif::soapEnvelope, "Body")->child(onvif::tds, "GetUsers"));
        QVERIFY(request.root->child(onvif::soapEnvelope, "Header"));
    }
};

ORDA_TEST_MAIN(OnvifXmlTest)
#include "onvif_xml_test.moc"
