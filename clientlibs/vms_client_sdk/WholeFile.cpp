#include <vms_client_sdk/WholeFile.h>

#include <QFile>
#include <QSaveFile>

namespace vms_sdk {

QString writeWholeFile(const QString &path, const QByteArray &content, Readers readers)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly)
                        && (readers == Readers::Usual || file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
                        && file.write(content) == content.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

} // namespace vms_sdk
