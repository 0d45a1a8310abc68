#include "batch/InputFile.h"

#include "batch/EndedBySignals.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace orda_batch {

namespace {

/// The context of the texts.
class InputFile
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::InputFile)
};

} // namespace

QString readInputFile(const QString &path, qint64 maxBytes, QByteArray *content)
{
    constexpr qint64 pieceBytes = 1 << 20;
    const EndedBySignals whileItReads;
    content->clear();
    if (QFileInfo(path).isDir())
        return InputFile::tr("cannot be read: it is a directory");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return InputFile::tr("cannot be read: %1").arg(file.errorString());
    // In pieces: a pipe does not tell its size, and may never end.
    for (QByteArray piece = file.read(pieceBytes); !piece.isEmpty(); piece = file.read(pieceBytes)) {
        content->append(piece);
        if (content->size() > maxBytes) {
            content->clear();
            return InputFile::tr("is larger than %1 MiB").arg(double(maxBytes) / (1 << 20));
        }
    }
    return file.error() == QFileDevice::NoError ? QString()
                                                : InputFile::tr("cannot be read: %1").arg(file.errorString());
}

} // namespace orda_batch
