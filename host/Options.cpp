#include "host/Options.h"

#include "handset/CallRetention.h"
#include "handset/Handset.h"
#include "host/ScreenTable.h"
#include "host/panel/Panel.h"
#include "language/Catalogue.h"
#include "language/Languages.h"

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
// Of a telephone that no script can drive, and whose figures are somebody's.
constexpr const char *liveTour = ":/tours/live.tour";

constexpr const char *description = QT_TRANSLATE_NOOP(
    "kavrecentcalls",
    "Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel\n"
    "that makes calls on the simulated telephone.");

constexpr const char *exitCodes = QT_TRANSLATE_NOOP(
    "kavrecentcalls",
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
    " 10  a tour was ended by a signal before its end\n");

struct OptionText {
    const char *name;
    const char *value;
    const char *text;
};

constexpr OptionText optionTexts[] = {
    {"state", "DIR",
     QT_TRANSLATE_NOOP(
         "kavrecentcalls",
         "Keep the telephone's state in DIR between starts; \"none\" keeps it in memory. Default: %1")},
    {"trace", "FILE",
     QT_TRANSLATE_NOOP("kavrecentcalls",
                       "Append the traces to FILE; \"-\" is standard output. Default: trace.log in the state "
                       "directory; no trace where the state is in memory, and on a tour.")},
    {"backend", "NAME",
     QT_TRANSLATE_NOOP(
         "kavrecentcalls",
         "The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else "
         "simulated. Default: simulated.")},
    {"keep-calls", "DAYS",
     QT_TRANSLATE_NOOP("kavrecentcalls", "Keep the calls of the last DAYS days, 0 to 100000; older ones are "
                                         "deleted at the start and once a day, and "
                                         "stay in the totals. Default: all are kept.")},
    {"plugin", "NAME", QT_TRANSLATE_NOOP("kavrecentcalls", "The plug-in library. Default: libkavcallmeter.so.1")},
    {"screen", "NAME", QT_TRANSLATE_NOOP("kavrecentcalls", "Open this screen at once: %3.")},
    {"page", "NAME", QT_TRANSLATE_NOOP("kavrecentcalls", "Show this page of the panel: %4.")},
    {"display", nullptr,
     QT_TRANSLATE_NOOP("kavrecentcalls",
                       "Show the phone's display alone, as large as the window and worked by touch: "
                       "for a window that is a phone's.")},
    {"translation", "FILE", QT_TRANSLATE_NOOP("kavrecentcalls", "Load the texts of the catalogue FILE (.qm).")},
    {"language", "NAME",
     QT_TRANSLATE_NOOP("kavrecentcalls",
                       "Speak this language: %5. Default: the locale's; English on a tour and with --photo.")},
    {"skin", "NAME",
     QT_TRANSLATE_NOOP("kavrecentcalls", "The colours: light or dark. Default: the desktop's; light on a tour and "
                                         "with --photo.")},
    {"photo", "FILE", QT_TRANSLATE_NOOP("kavrecentcalls", "Photograph the window as PNG to FILE and end.")},
    {"tour", "DIR",
     QT_TRANSLATE_NOOP(
         "kavrecentcalls",
         "Play a tour without a display: put photographs of the screens into DIR and print their texts.")},
    {"script", "FILE",
     QT_TRANSLATE_NOOP("kavrecentcalls",
                       "Play this script instead of the tour of all screens; only with --tour.")},
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
    return language::languageNames().join(QStringLiteral(", "));
}

QStringList skinNames()
{
    return {QStringLiteral("light"), QStringLiteral("dark")};
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

QString completed(QString text)
{
    for (const FoundOut &found : foundOut) {
        const QLatin1StringView mark(found.mark);
        if (text.contains(mark))
            text.replace(mark, found.text());
    }
    return text;
}

// What the options mean is asked for by --help alone, and every other start would pay for it.
enum class Texts { Without, With };

void describe(QCommandLineParser &parser, Texts texts)
{
    const auto text = [texts](const char *english) {
        return texts == Texts::With ? QCoreApplication::translate("kavrecentcalls", english) : QString();
    };
    parser.setApplicationDescription(text(description));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                      text(QT_TRANSLATE_NOOP("kavrecentcalls", "Shows this help."))});
    parser.addVersionOption();
    for (const OptionText &option : optionTexts) {
        parser.addOption(
            {QString::fromLatin1(option.name), completed(text(option.text)), QString::fromLatin1(option.value)});
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
        if (option.value && parser.isSet(name) && parser.value(name).isEmpty())
            return QCoreApplication::translate("kavrecentcalls", "Option '%1' has an empty value.").arg(name);
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
            return QCoreApplication::translate("kavrecentcalls", "The name that option '%1' gives is not UTF-8.")
                .arg(option);
    }
    return {};
}

QString findUnknownName(const QCommandLineParser &parser)
{
    const QString screen = parser.value(QStringLiteral("screen"));
    if (!screen.isEmpty() && !knowsScreen(screen))
        return QCoreApplication::translate("kavrecentcalls", "Unknown screen '%1'; there is: %2.")
            .arg(screen, screenNames());
    const QString page = parser.value(QStringLiteral("page"));
    if (!page.isEmpty() && pageIndex(page) < 0)
        return QCoreApplication::translate("kavrecentcalls", "Unknown page '%1'; there is: %2.")
            .arg(page, allPageNames());
    const QString language = parser.value(QStringLiteral("language"));
    if (!language.isEmpty() && !language::languageNames().contains(language))
        return QCoreApplication::translate("kavrecentcalls", "Unknown language '%1'; there is: %2.")
            .arg(language, allLanguageNames());
    const QString skin = parser.value(QStringLiteral("skin"));
    if (!skin.isEmpty() && !skinNames().contains(skin))
        return QCoreApplication::translate("kavrecentcalls", "Unknown skin '%1'; there is: %2.")
            .arg(skin, skinNames().join(QStringLiteral(", ")));
    return {};
}

QString findMistake(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return QCoreApplication::translate("kavrecentcalls", "Unexpected argument '%1'.")
            .arg(parser.positionalArguments().constFirst());
    if (QString mistake = findEmptyValue(parser); !mistake.isEmpty())
        return mistake;
    if (QString mistake = findUnreadableName(parser); !mistake.isEmpty())
        return mistake;
    if (parser.isSet(QStringLiteral("script")) && !parser.isSet(QStringLiteral("tour")))
        return QCoreApplication::translate("kavrecentcalls", "Option 'script' needs option 'tour'.");
    const QString keptDays = QStringLiteral("keep-calls");
    if (parser.isSet(keptDays) && !handset::keptDaysFrom(parser.value(keptDays)))
        return QCoreApplication::translate("kavrecentcalls",
                                           "Option 'keep-calls' wants a number of days, 0 to %1.")
            .arg(handset::mostKeptDays);
    for (const char *name : {"screen", "page", "skin", "display", "photo", "keep-calls"}) {
        if (parser.isSet(QString::fromLatin1(name)) && parser.isSet(QStringLiteral("tour")))
            return QCoreApplication::translate("kavrecentcalls", "Option '%1' does not go with option 'tour'.")
                .arg(QLatin1StringView(name));
    }
    if (parser.isSet(QStringLiteral("page")) && parser.isSet(QStringLiteral("display")))
        return QCoreApplication::translate("kavrecentcalls", "Option 'page' does not go with option 'display'.");
    if (parser.isSet(QStringLiteral("language")) && parser.isSet(QStringLiteral("translation")))
        return QCoreApplication::translate("kavrecentcalls",
                                           "Option 'language' does not go with option 'translation'.");
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
    options.skin = parser.value(QStringLiteral("skin"));
    options.displayAlone = parser.isSet(QStringLiteral("display"));
    options.photo = parser.value(QStringLiteral("photo"));
    options.tourDirectory = parser.value(QStringLiteral("tour"));
    const bool isSimulated = options.backend == handset::Settings().backend;
    options.script = valueOr(parser, "script", QString::fromLatin1(isSimulated ? shippedTour : liveTour));
    const bool dropTrace = options.stateDirectory.isEmpty() || options.isTour();
    options.traceFile =
        valueOr(parser, "trace", dropTrace ? QString() : QDir(options.stateDirectory).filePath("trace.log"));
    return options;
}

CommandLine parse(const QStringList &arguments, Texts texts)
{
    QCommandLineParser parser;
    describe(parser, texts);
    const bool parsed = parser.parse(arguments);
    if (parsed && parser.isSet(QStringLiteral("help")))
        return {{}, parser.helpText() + QCoreApplication::translate("kavrecentcalls", exitCodes), {}};
    if (parsed && parser.isSet(QStringLiteral("version"))) {
        const QString version = QCoreApplication::applicationVersion();
        return {{}, QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), version), {}};
    }
    const QString mistake = parsed ? findMistake(parser) : parser.errorText();
    if (mistake.isEmpty())
        return {readOptions(parser), {}, {}};
    return {{}, {}, mistake + u' ' + QCoreApplication::translate("kavrecentcalls", "See kavrecentcalls --help.")};
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    CommandLine line = parse(arguments, Texts::Without);
    if (line.options)
        return line;
    language::Catalogue catalogue;
    catalogue.installLanguage(language::languageFor(arguments));
    return parse(arguments, Texts::With);
}

} // namespace host
