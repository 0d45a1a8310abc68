#include "programs/Csv.h"

#include <QRegularExpression>

namespace orda_programs {

QString csvCell(QString text)
{
    // No text of a device may become a formula, not even in spreadsheets that split cells at other characters. What has
    // an apostrophe there already gets one more, so that whoever takes one away has the text as it was.
    static const QRegularExpression formula(
        QStringLiteral("(^|[;|\\t\\r\\n])(?='*[=+@\\t\\r\\n\uFF1D\uFF0B\uFF20\uFF0D-])"));
    text.replace(formula, QStringLiteral("\\1'"));
    const auto has = [&text](char character) { return text.contains(QLatin1Char(character)); };
    if (has(',') || has(';') || has('\t') || has('"') || has('\r') || has('\n'))
        text = QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
    return text;
}

QString csvText(QString cell)
{
    if (!cell.contains(QLatin1Char('\''))) // as nearly all, and the expression below takes its time
        return cell;
    static const QRegularExpression guard(
        QStringLiteral("(^|[;|\\t\\r\\n])'(?='*[=+@\\t\\r\\n\uFF1D\uFF0B\uFF20\uFF0D-])"));
    return cell.replace(guard, QStringLiteral("\\1"));
}

QString csvLine(const QStringList &texts)
{
    QStringList cells;
    for (const QString &text : texts)
        cells.append(csvCell(text));
    return cells.join(QLatin1Char(',')) + QLatin1String("\r\n");
}

} // namespace orda_programs
