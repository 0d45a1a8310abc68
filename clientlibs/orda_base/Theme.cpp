#include <orda_base/Theme.h>

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>

#include <algorithm>
#include <utility>

namespace orda_base {

namespace {

struct Colour
{
    const char *name;
    const char *light;
    const char *dark;
};

// Text on any of the surfaces that it stands on has a contrast of at least 4.5:1, disabled text too.
constexpr Colour colours[]{
    {"text", "#1d2733", "#e6eaf0"},          {"disabledText", "#5d6877", "#a3adbb"},
    {"window", "#f4f6f9", "#171c23"},        {"surface", "#ffffff", "#1f262f"},
    {"header", "#e9edf2", "#2a323d"},        {"border", "#d3d9e2", "#3b4552"},
    {"controlBorder", "#8b97a8", "#76839a"}, {"scroll", "#b7c0cc", "#55606f"},
    {"hover", "#eef3fa", "#28313d"},         {"selection", "#dce9fb", "#243f63"},
    {"accent", "#1862c8", "#6aa5f8"},        {"accentHover", "#14539f", "#8bb9fa"},
    {"accentPressed", "#0f4485", "#a9ccfc"}, {"onAccent", "#ffffff", "#0d1b2e"},
    {"focusOnAccent", "#0b2f5e", "#ffffff"},
};

bool dark = false;

QLatin1String schemeName()
{
    return QLatin1String(dark ? "dark" : "light");
}

QString colour(const QString &name)
{
    const auto *found = std::find_if(std::begin(colours), std::end(colours),
                                     [&name](const Colour &c) { return name == QLatin1String(c.name); });
    if (found == std::end(colours))
        qFatal("theme.qss: there is no colour \"%s\"", qPrintable(name));
    return QString::fromLatin1(dark ? found->dark : found->light);
}

QString styleSheet()
{
    QFile file(QStringLiteral(":/orda_base/theme.qss"));
    file.open(QIODevice::ReadOnly);
    QString sheet = QString::fromUtf8(file.readAll());
    sheet.replace(QLatin1String("@{scheme}"), schemeName());
    static const QRegularExpression token(QStringLiteral("@(\\w+)"));
    int from = 0;
    for (auto match = token.match(sheet); match.hasMatch(); match = token.match(sheet, from)) {
        const QString value = colour(match.captured(1));
        sheet.replace(match.capturedStart(), match.capturedLength(), value);
        from = match.capturedStart() + value.size();
    }
    return sheet;
}

QPalette palette()
{
    using Role = std::pair<QPalette::ColorRole, const char *>;
    constexpr Role roles[]{
        {QPalette::Window, "window"},        {QPalette::WindowText, "text"},
        {QPalette::Base, "surface"},         {QPalette::Text, "text"},
        {QPalette::AlternateBase, "window"}, {QPalette::Button, "surface"},
        {QPalette::ButtonText, "text"},      {QPalette::PlaceholderText, "disabledText"},
        {QPalette::Highlight, "accent"},     {QPalette::HighlightedText, "onAccent"},
        {QPalette::ToolTipBase, "surface"},  {QPalette::ToolTipText, "text"},
        {QPalette::Link, "accent"},
    };
    QPalette result(QColor(colour(QStringLiteral("surface"))), QColor(colour(QStringLiteral("window"))));
    for (const auto &[role, name] : roles)
        result.setColor(role, colour(QLatin1String(name)));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        result.setColor(QPalette::Disabled, role, colour(QStringLiteral("disabledText")));
    return result;
}

} // namespace

void Theme::apply(QApplication &app, Scheme scheme)
{
    dark = scheme == Dark || (scheme == FollowPalette && isDark(QApplication::palette()));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    app.setStyleSheet(styleSheet());
}

bool Theme::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QString Theme::image(const QString &name)
{
    return QStringLiteral(":/orda_base/images/%1_%2.svg").arg(schemeName(), name);
}

} // namespace orda_base
