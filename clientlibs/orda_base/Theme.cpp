#include "orda_base/Theme.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>

#include <algorithm>

namespace orda_base {

namespace {

struct Colour
{
    const char *name;
    const char *value;
};

// Text on any of the surfaces has a contrast of at least 4.5:1.
constexpr Colour colours[]{
    {"text", "#1d2733"},          {"disabledText", "#6b7685"}, {"window", "#f4f6f9"},        {"surface", "#ffffff"},
    {"header", "#e9edf2"},        {"border", "#d3d9e2"},       {"controlBorder", "#8b97a8"}, {"scroll", "#b7c0cc"},
    {"hover", "#eef3fa"},         {"selection", "#dce9fb"},    {"accent", "#1862c8"},        {"accentHover", "#14539f"},
    {"accentPressed", "#0f4485"}, {"onAccent", "#ffffff"},     {"focusOnAccent", "#0b2f5e"},
};

QString colour(const char *name)
{
    const auto *found = std::find_if(std::begin(colours), std::end(colours),
                                     [name](const Colour &c) { return qstrcmp(c.name, name) == 0; });
    if (found == std::end(colours))
        qFatal("theme.qss: there is no colour \"%s\"", name);
    return QString::fromLatin1(found->value);
}

QString styleSheet()
{
    QFile file(QStringLiteral(":/orda_base/theme.qss"));
    file.open(QIODevice::ReadOnly);
    QString sheet = QString::fromUtf8(file.readAll());
    static const QRegularExpression token(QStringLiteral("@(\\w+)"));
    int from = 0;
    for (auto match = token.match(sheet); match.hasMatch(); match = token.match(sheet, from)) {
        const QString value = colour(qPrintable(match.captured(1)));
        sheet.replace(match.capturedStart(), match.capturedLength(), value);
        from = match.capturedStart() + value.size();
    }
    return sheet;
}

QPalette palette()
{
    QPalette result(QColor(colour("window")));
    result.setColor(QPalette::WindowText, colour("text"));
    result.setColor(QPalette::Text, colour("text"));
    result.setColor(QPalette::ButtonText, colour("text"));
    result.setColor(QPalette::Base, colour("surface"));
    result.setColor(QPalette::AlternateBase, colour("window"));
    result.setColor(QPalette::Highlight, colour("accent"));
    result.setColor(QPalette::HighlightedText, colour("onAccent"));
    result.setColor(QPalette::PlaceholderText, colour("disabledText"));
    result.setColor(QPalette::Disabled, QPalette::Text, colour("disabledText"));
    result.setColor(QPalette::Disabled, QPalette::ButtonText, colour("disabledText"));
    return result;
}

} // namespace

void Theme::apply(QApplication &app)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    app.setStyleSheet(styleSheet());
}

} // namespace orda_base
