#include "run/NearestSpinBox.h"

#include <QRegularExpression>

namespace orda_batchCfg {

QValidator::State NearestSpinBox::validate(QString &input, int &pos) const
{
    const QValidator::State state = QSpinBox::validate(input, pos);
    static const QRegularExpression number(QStringLiteral("^\\d+$"));
    // QSpinBox refuses the digit that makes a number too large: of 99999 it would keep 9999.
    const bool isTooLarge = state == QValidator::Invalid && number.match(digits(input)).hasMatch();
    return isTooLarge ? QValidator::Intermediate : state;
}

void NearestSpinBox::fixup(QString &input) const
{
    const QString typed = digits(input);
    bool isInt = false;
    const int number = typed.isEmpty() ? minimum() : locale().toInt(typed, &isInt);
    // A number that is too large for an int is above the maximum.
    input = textFromValue(typed.isEmpty() || isInt ? qBound(minimum(), number, maximum()) : maximum());
}

QString NearestSpinBox::digits(const QString &input) const
{
    QString text = input;
    if (!suffix().isEmpty() && text.endsWith(suffix()))
        text.chop(suffix().size());
    return text.mid(text.startsWith(prefix()) ? prefix().size() : 0).trimmed();
}

} // namespace orda_batchCfg
