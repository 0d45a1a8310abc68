#include "batch/StandardOutput.h"

#include "programs/Complaint.h"
#include "programs/ExitCode.h"

#include <vms_client_sdk/ForeignText.h>

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <unistd.h>

namespace orda_batch {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::StandardOutput)
};

} // namespace

int print(const QString &text)
{
    const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
    const QByteArray bytes = (isTerminal ? vms_sdk::escaped(text, QStringLiteral("\r\n")) : text).toUtf8();
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && output.write(bytes) == bytes.size() && output.flush())
        return orda_programs::ExitOk;
    if (errno == EPIPE)
        return orda_programs::ExitOk; // whoever reads it has seen enough
    return orda_programs::fail(Texts::tr("The standard output cannot be written: %1").arg(output.errorString()),
                               orda_programs::ExitSomeFailed);
}

} // namespace orda_batch
