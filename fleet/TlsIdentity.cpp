#include "fleet/TlsIdentity.h"

#include <QCoreApplication>
#include <QFile>
#include <QSslCertificate>
#include <QSslKey>

namespace device_fleet {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("TlsIdentity", text);
}

QByteArray readFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("%1: cannot be read: %2").arg(path, file.errorString());
        return {};
    }
    return file.readAll();
}

QSslKey readKey(const QByteArray &pem)
{
    for (const QSsl::KeyAlgorithm algorithm : {QSsl::Rsa, QSsl::Ec}) {
        QSslKey key(pem, algorithm);
        if (!key.isNull())
            return key;
    }
    return {};
}

} // namespace

QSslConfiguration readTlsIdentity(const QString &certificateFile, const QString &keyFile, QString *error)
{
    error->clear();
    const QByteArray certificatePem = readFile(certificateFile, error);
    const QByteArray keyPem = error->isEmpty() ? readFile(keyFile, error) : QByteArray();
    if (!error->isEmpty())
        return {};

    const QList<QSslCertificate> chain = QSslCertificate::fromData(certificatePem);
    const QSslKey key = readKey(keyPem);
    if (chain.isEmpty())
        *error = tr("%1: must be a certificate in PEM form").arg(certificateFile);
    else if (key.isNull())
        *error = tr("%1: must be an RSA or EC key in PEM form, without a passphrase").arg(keyFile);

    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setLocalCertificateChain(chain);
    configuration.setPrivateKey(key);
    return configuration;
}

} // namespace device_fleet
