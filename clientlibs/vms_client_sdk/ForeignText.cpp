#include <vms_client_sdk/ForeignText.h>

namespace vms_sdk {

namespace {

bool isControl(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

bool isInvisible(uint character)
{
    const QChar::Category category = QChar::category(character);
    const bool isMark = category == QChar::Other_Format || category == QChar::Other_Surrogate;
    const bool isReserved = character >= 0x2060 && character <= 0x2069; // the rest of a block of such marks
    return isMark || isReserved || isControl(character);
}

/// The character at @p index, which moves past it. By hand, so that half a surrogate pair stays what it is; a regular
/// expression matches nothing in a text with one.
uint takeCharacter(const QString &text, int &index)
{
    const QChar unit = text.at(index++);
    if (unit.isHighSurrogate() && index < text.size() && text.at(index).isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text.at(index++));
    return unit.unicode();
}

template <typename Condition>
bool holds(const QString &text, Condition condition)
{
    for (int i = 0; i < text.size();)
        if (condition(takeCharacter(text, i)))
            return true;
    return false;
}

/// QString::fromUcs4() leaves out a byte order mark.
QString textOf(uint character)
{
    if (QChar::requiresSurrogates(character))
        return QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character));
    return {QChar(ushort(character))};
}

template <typename Replacement>
QString replaced(const QString &text, const QString &kept, Replacement replacement)
{
    if (!holdsInvisible(text))
        return text;
    QString result;
    for (int i = 0; i < text.size();) {
        const uint character = takeCharacter(text, i);
        const QString same = textOf(character);
        result += isInvisible(character) && !kept.contains(same) ? replacement(character) : same;
    }
    return result;
}

} // namespace

bool holdsControls(const QString &text)
{
    return holds(text, isControl);
}

bool holdsInvisible(const QString &text)
{
    return holds(text, isInvisible);
}

QString escaped(const QString &text, const QString &kept)
{
    return replaced(text, kept, [](uint character) {
        constexpr uint lastOfFourDigits = 0xFFFF;
        return character <= lastOfFourDigits ? QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'))
                                             : QStringLiteral("\\U%1").arg(character, 8, 16, QLatin1Char('0'));
    });
}

QString displayText(const QString &text, const QString &kept)
{
    return replaced(text, kept, [](uint) { return QString(QChar(QChar::ReplacementCharacter)); });
}

} // namespace vms_sdk
