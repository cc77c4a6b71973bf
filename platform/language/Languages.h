// The languages that the program has catalogues for.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace language {

/// "en", which the program speaks without a catalogue, and the names of the catalogues that are installed beside the
/// program, as QLocale writes them ("de", "zh_CN"); sorted. Needs an application object.
QStringList languageNames();

/// The first of `wanted` (names of locales, the preferred one first; "de-AT") that is among languageNames(), with
/// the same script, and so without regard to the country; "en" for none.
QString suitableLanguage(const QStringList &wanted);

/// The file of the catalogue; empty for "en".
QString catalogueOf(const QString &language);

/// The language for a user of a command line: what "--language" names in it, else that of the locale.
QString languageFor(const QStringList &arguments);

} // namespace language
