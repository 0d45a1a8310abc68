#include "client/record/RecordViewer.h"

#include <QProcess>

namespace orda_client {

void RecordViewer::open(const QString &path)
{
    // Not QDesktopServices::openUrl(): it succeeds as soon as the desktop's opener has started, even when that finds no
    // viewer. Without a parent: the opener may be the viewer itself, which stays when this program ends.
    auto *opener = new QProcess;
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setStandardInputFile(QProcess::nullDevice());
    connect(opener, &QProcess::errorOccurred, this, [this, path](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            emit signalNoViewer(path);
    });
    connect(opener, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, path](int exitCode, QProcess::ExitStatus status) {
                if (status != QProcess::NormalExit || exitCode != 0)
                    emit signalNoViewer(path);
            });
    connect(opener, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), opener, &QObject::deleteLater);
    connect(opener, &QProcess::errorOccurred, opener, [opener](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            opener->deleteLater();
    });
    opener->start(QStringLiteral("xdg-open"), {path});
}

} // namespace orda_client
