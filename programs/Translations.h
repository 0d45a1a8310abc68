#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace orda_programs {

/// The languages of a program. Each but English, in which the texts are written, is a set of compiled translations in
/// the resource ":/translations", named <part>_<language>.qm.
class Translations
{
public:
    /// Codes of the languages to choose from.
    static QStringList languages();

    /// The code for the system's locale, whatever its country; English where there is none.
    static QString systemLanguage();

    /// @param language a code; empty: the system's
    /// @return false when there is no such language
    bool install(const QString &language);

private:
    void load(const QString &file);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace orda_programs
