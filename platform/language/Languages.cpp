#include "language/Languages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <algorithm>

namespace language {

namespace {

const QString &english()
{
    static const QString name = QStringLiteral("en");
    return name;
}

QDir folder()
{
    return QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/" KAV_TRANSLATIONS));
}

bool isSpokenIn(const QString &language, const QLocale &locale)
{
    const QLocale own(language);
    return own.language() == locale.language() && own.script() == locale.script();
}

} // namespace

QStringList languageNames()
{
    QStringList names{english()};
    const QLatin1StringView ending(".qm");
    const QStringList files =
        folder().entryList(QDir::Files); // a pattern of names would cost the start more than this
    for (const QString &file : files) {
        if (file.endsWith(ending))
            names << file.chopped(ending.size());
    }
    names.sort();
    return names;
}

QString suitableLanguage(const QStringList &wanted)
{
    const QStringList names = languageNames();
    for (const QString &name : wanted) {
        const QLocale locale(name);
        const auto found =
            std::find_if(names.begin(), names.end(), [&](auto &own) { return isSpokenIn(own, locale); });
        if (found != names.end())
            return *found;
    }
    return english();
}

QString catalogueOf(const QString &language)
{
    return language == english() ? QString() : folder().filePath(language + QStringLiteral(".qm"));
}

QString languageFor(const QStringList &arguments)
{
    // Also in what has a mistake, which is to be told in that language.
    const qsizetype end = arguments.indexOf(QStringLiteral("--"));
    static const QRegularExpression option(QStringLiteral("^--?language(?:=(.*))?$"));
    QString named;
    for (qsizetype index = 1; index < (end < 0 ? arguments.size() : end); ++index) {
        const QRegularExpressionMatch match = option.match(arguments[index]);
        if (match.hasMatch())
            named = match.hasCaptured(1) ? match.captured(1) : arguments.value(index + 1);
    }
    return languageNames().contains(named) ? named : suitableLanguage(QLocale::system().uiLanguages());
}

} // namespace language
