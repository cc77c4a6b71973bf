#include "host/Options.h"

#include "handset/CallRetention.h"
#include "handset/Handset.h"
#include "host/Languages.h"
#include "host/ScreenTable.h"
#include "host/panel/Panel.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <algorithm>
#include <array>

namespace host {

namespace {

constexpr const char *defaultPlugin = "libkavcallmeter.so.1";
constexpr const char *shippedTour = ":/tours/tour.tour";

constexpr const char *description =
    "Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel\n"
    "that makes calls on the simulated telephone.";

constexpr const char *exitCodes =
    "\nExit codes:\n"
    "  0  all went well\n"
    "  1  a tour saw something else than its script expects\n"
    "  2  the command line is wrong\n"
    "  3  the telephone cannot be opened\n"
    "  4  the trace file cannot be opened\n"
    "  5  the plug-in or another library, or a function of it, is missing, or the plug-in gives no screen\n"
    "  6  the tour's script cannot be read, or has a mistake\n"
    "  7  a photograph, the text of a tour, or what was asked for cannot be written\n"
    "  8  the translation catalogue cannot be loaded\n"
    "  9  there is no display to show the window on, or no such platform of Qt\n"
    " 10  a tour was ended by a signal before its end\n";

struct OptionText {
    const char *name;
    const char *value;
    const char *text;
};

constexpr OptionText optionTexts[] = {
    {"state", "DIR", "Keep the telephone's state in DIR between starts; \"none\" keeps it in memory. Default: %1"},
    {"trace", "FILE",
     "Append the traces to FILE; \"-\" is standard output. Default: trace.log in the state "
     "directory; no trace where the state is in memory, and on a tour."},
    {"backend", "NAME",
     "The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else "
     "simulated. Default: simulated."},
    {"keep-calls", "DAYS",
     "Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and "
     "stay in the totals. Default: all are kept."},
    {"plugin", "NAME", "The plug-in library. Default: libkavcallmeter.so.1"},
    {"screen", "NAME", "Open this screen at once: %3."},
    {"page", "NAME", "Show this page of the panel: %4."},
    {"translation", "FILE", "Load the texts of the catalogue FILE (.qm)."},
    {"language", "NAME", "Speak this language: %5. Default: the locale's; English on a tour and with --photo."},
    {"photo", "FILE", "Photograph the window as PNG to FILE and end."},
    {"tour", "DIR",
     "Play a tour without a display: put photographs of the screens into DIR and print their texts."},
    {"script", "FILE", "Play this script instead of the tour of all screens; only with --tour."},
};

QString screenNames()
{
    QStringList names;
    for (const ScreenEntry &entry : screenTable)
        names << QLatin1StringView(entry.name);
    return names.join(QStringLiteral(", "));
}

QString allPageNames()
{
    QStringList names;
    for (const char *name : pageNames)
        names << QLatin1StringView(name);
    return names.join(QStringLiteral(", "));
}

QString allLanguageNames()
{
    return languageNames().join(QStringLiteral(", "));
}

// -1 for none.
int pageIndex(const QString &name)
{
    const auto isIt = [&](const char *page) { return name == QLatin1StringView(page); };
    const auto *const found = std::find_if(pageNames.begin(), pageNames.end(), isIt);
    return found == pageNames.end() ? -1 : static_cast<int>(found - pageNames.begin());
}

QString allBackendNames()
{
    return handset::backendNames().join(QStringLiteral(", "));
}

/// What stands in an option's text for what the program finds out.
struct FoundOut {
    const char *mark;
    QString (*text)();
};

constexpr std::array foundOut{
    FoundOut{"%1", &handset::defaultStateDirectory},
    FoundOut{"%2", &allBackendNames},
    FoundOut{"%3", &screenNames},
    FoundOut{"%4", &allPageNames},
    FoundOut{"%5", &allLanguageNames},
};

// Only what is asked for is found out, as every start pays for it.
QString completed(QString text)
{
    for (const FoundOut &found : foundOut) {
        const QLatin1StringView mark(found.mark);
        if (text.contains(mark))
            text.replace(mark, found.text());
    }
    return text;
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QLatin1StringView(description));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")});
    parser.addVersionOption();
    for (const OptionText &option : optionTexts) {
        parser.addOption({QString::fromLatin1(option.name), completed(QString::fromLatin1(option.text)),
                          QString::fromLatin1(option.value)});
    }
}

bool knowsScreen(const QString &name)
{
    return screenIndex(name) >= 0;
}

// A value that is given but empty is nearly always a shell variable that was not set.
QString findEmptyValue(const QCommandLineParser &parser)
{
    for (const OptionText &option : optionTexts) {
        const QString name = QString::fromLatin1(option.name);
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return QStringLiteral("Option '%1' has an empty value.").arg(name);
    }
    return {};
}

// Bytes that are no UTF-8 come as replacement characters, and would lead to a file of another name. (The state directory
// says so itself.)
QString findUnreadableName(const QCommandLineParser &parser)
{
    for (const char *name : {"trace", "plugin", "translation", "photo", "tour", "script"}) {
        const QString option = QString::fromLatin1(name);
        const QString value = parser.value(option);
        if (value.contains(QChar(QChar::ReplacementCharacter)) ||
            QFile::decodeName(QFile::encodeName(value)) != value)
            return QStringLiteral("The name that option '%1' gives is not UTF-8.").arg(option);
    }
    return {};
}

QString findUnknownName(const QCommandLineParser &parser)
{
    const QString screen = parser.value(QStringLiteral("screen"));
    if (!screen.isEmpty() && !knowsScreen(screen))
        return QStringLiteral("Unknown screen '%1'; there is: %2.").arg(screen, screenNames());
    const QString page = parser.value(QStringLiteral("page"));
    if (!page.isEmpty() && pageIndex(page) < 0)
        return QStringLiteral("Unknown page '%1'; there is: %2.").arg(page, allPageNames());
    const QString language = parser.value(QStringLiteral("language"));
    if (!language.isEmpty() && !languageNames().contains(language))
        return QStringLiteral("Unknown language '%1'; there is: %2.").arg(language, allLanguageNames());
    return {};
}

QString findMistake(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    if (QString mistake = findEmptyValue(parser); !mistake.isEmpty())
        return mistake;
    if (QString mistake = findUnreadableName(parser); !mistake.isEmpty())
        return mistake;
    if (parser.isSet(QStringLiteral("script")) && !parser.isSet(QStringLiteral("tour")))
        return QStringLiteral("Option 'script' needs option 'tour'.");
    const QString keptDays = QStringLiteral("keep-calls");
    if (parser.isSet(keptDays) && !handset::keptDaysFrom(parser.value(keptDays)))
        return QStringLiteral("Option 'keep-calls' wants a number of days, 0 to %1.").arg(handset::mostKeptDays);
    for (const char *name : {"screen", "page", "photo", "keep-calls"}) {
        if (parser.isSet(QString::fromLatin1(name)) && parser.isSet(QStringLiteral("tour")))
            return QStringLiteral("Option '%1' does not go with option 'tour'.").arg(QLatin1StringView(name));
    }
    if (parser.isSet(QStringLiteral("language")) && parser.isSet(QStringLiteral("translation")))
        return QStringLiteral("Option 'language' does not go with option 'translation'.");
    return findUnknownName(parser);
}

QString valueOr(const QCommandLineParser &parser, const char *name, const QString &fallback)
{
    const QString option = QString::fromLatin1(name);
    return parser.isSet(option) ? parser.value(option) : fallback;
}

QString stateDirectoryOf(const QCommandLineParser &parser)
{
    const QString directory = valueOr(parser, "state", handset::defaultStateDirectory());
    return directory == QLatin1StringView("none") ? QString() : directory;
}

Options readOptions(const QCommandLineParser &parser)
{
    Options options;
    options.backend = valueOr(parser, "backend", QStringLiteral("simulated"));
    options.stateGiven = parser.isSet(QStringLiteral("state"));
    options.stateDirectory = stateDirectoryOf(parser);
    options.keptDays = handset::keptDaysFrom(parser.value(QStringLiteral("keep-calls")));
    options.plugin = valueOr(parser, "plugin", QString::fromLatin1(defaultPlugin));
    options.screen = parser.value(QStringLiteral("screen"));
    options.page = std::max(pageIndex(parser.value(QStringLiteral("page"))), 0);
    options.translation = parser.value(QStringLiteral("translation"));
    options.language = parser.value(QStringLiteral("language"));
    options.photo = parser.value(QStringLiteral("photo"));
    options.tourDirectory = parser.value(QStringLiteral("tour"));
    options.script = valueOr(parser, "script", QString::fromLatin1(shippedTour));
    const bool dropTrace = options.stateDirectory.isEmpty() || options.isTour();
    options.traceFile =
        valueOr(parser, "trace", dropTrace ? QString() : QDir(options.stateDirectory).filePath("trace.log"));
    return options;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    const bool parsed = parser.parse(arguments);
    if (!parsed)
        return {{}, {}, parser.errorText()};
    if (parser.isSet(QStringLiteral("help")))
        return {{}, parser.helpText() + QLatin1StringView(exitCodes), {}};
    if (parser.isSet(QStringLiteral("version"))) {
        const QString version = QCoreApplication::applicationVersion();
        return {{}, QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), version), {}};
    }
    if (QString mistake = findMistake(parser); !mistake.isEmpty())
        return {{}, {}, mistake};
    return {readOptions(parser), {}, {}};
}

} // namespace host
