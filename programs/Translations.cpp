#include "programs/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace orda_programs {

namespace {

QStringList filesOf(const QString &language)
{
    return QDir(QStringLiteral(":/translations")).entryList({QStringLiteral("*_%1.qm").arg(language)});
}

} // namespace

QStringList Translations::languages()
{
    QStringList codes{QStringLiteral("en")};
    const QStringList files = filesOf(QStringLiteral("*"));
    for (const QString &file : files) {
        const QString code = file.section(QLatin1Char('_'), 1).chopped(int(qstrlen(".qm")));
        if (!codes.contains(code))
            codes.append(code);
    }
    return codes;
}

QString Translations::systemLanguage()
{
    const QStringList offered = languages();
    const QStringList wanted = QLocale::system().uiLanguages(); // such as "de-AT", "zh-Hans-SG"
    for (const QString &name : wanted) {
        const QLocale locale(name);
        for (const QString &code : offered) {
            const QLocale candidate(code);
            if (candidate.language() == locale.language() && candidate.script() == locale.script())
                return code;
        }
    }
    return offered.constFirst();
}

bool Translations::install(const QString &language)
{
    const QString code = language.isEmpty() ? systemLanguage() : language;
    if (!languages().contains(code))
        return false;
    const QLocale locale(code);
    if (locale.language() != QLocale::system().language())
        QLocale::setDefault(locale); // numbers are written as in this language too
    // Qt's own texts, such as those of its file dialog, where they are installed.
    load(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_%1").arg(code));
    const QStringList files = filesOf(code);
    for (const QString &file : files)
        load(QStringLiteral(":/translations/") + file);
    return true;
}

void Translations::load(const QString &file)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(file)) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    }
}

} // namespace orda_programs
