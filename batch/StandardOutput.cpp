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

int print(QString text, Format format)
{
    if (::isatty(STDOUT_FILENO) == 1)
        text = vms_sdk::escaped(text, QStringLiteral("\r\n"));
    else if (format == Format::Csv)
        text.prepend(QChar(QChar::ByteOrderMark)); // by which spreadsheets know UTF-8
    const QByteArray bytes = text.toUtf8();
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && output.write(bytes) == bytes.size() && output.flush())
        return orda_programs::ExitOk;
    if (errno == EPIPE)
        return orda_programs::ExitOk; // whoever reads it has seen enough
    return orda_programs::fail(Texts::tr("The standard output cannot be written: %1").arg(output.errorString()),
                               orda_programs::ExitSomeFailed);
}

} // namespace orda_batch
