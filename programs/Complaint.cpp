#include "programs/Complaint.h"

#include <vms_client_sdk/ForeignText.h>

#include <QCoreApplication>
#include <QTextStream>

namespace orda_programs {

void complain(const QString &text)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << vms_sdk::escaped(text) << Qt::endl;
}

int fail(const QString &text, int code)
{
    complain(text);
    return code;
}

} // namespace orda_programs
