#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

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

bool Translations::install(const QString &language)
{
    QString code = language;
    if (code.isEmpty()) {
        const QString system = QLocale::system().name(); // such as "de_DE"
        code = languages().contains(system) ? system : system.section(QLatin1Char('_'), 0, 0);
    } else if (!languages().contains(code)) {
        return false;
    }
    const QStringList files = filesOf(code);
    for (const QString &file : files) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(QStringLiteral(":/translations/") + file)) {
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
    return true;
}
