#include "orda_base/PortEditWt.h"

#include <QRegularExpressionValidator>

namespace orda_base {

PortEditWt::PortEditWt(QWidget *parent)
    : QLineEdit(parent)
{
    // QIntValidator would accept the typing of "99999" and refuse it only afterwards.
    static const QRegularExpression port(
        QStringLiteral("0|[1-9]\\d{0,3}|[1-5]\\d{4}|6[0-4]\\d{3}|65[0-4]\\d{2}|655[0-2]\\d|6553[0-5]"));
    setValidator(new QRegularExpressionValidator(port, this));
}

} // namespace orda_base
