#include "meter/CommandLine.h"

#include "handset/CallRetention.h"
#include "handset/Handset.h"
#include "language/Languages.h"
#include "meter/Figures.h"
#include "meter/Text.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace meter {

namespace {

constexpr const char *description = QT_TRANSLATE_NOOP(
    "kavmeter", "Shows the meters of the phone: times and costs of calls, times and bytes of packet data.\n\n"
                "Commands:\n"
                "  figures [NAME ...]   all figures, or these; the default\n"
                "  settings             advice of charge: how costs are counted, the credit limit, the price\n"
                "  calls                the calls that are kept\n"
                "  sessions             the packet-data sessions that are kept\n"
                "  totals               what is kept, by month or as --by and --cycle-day say\n"
                "  reset NAME           sets to zero: %1\n"
                "  delete ID|all        deletes a call, or all that are over; totals stay\n"
                "  export FILE          writes the whole state as JSON; \"-\" is standard output\n"
                "  import FILE          makes a new state of such a file\n\n"
                "Figures: %2.");

constexpr const char *exitCodes =
    QT_TRANSLATE_NOOP("kavmeter", "\nExit codes:\n"
                                  "  0  all went well\n"
                                  "  1  the telephone refuses, or the call log cannot be read or written\n"
                                  "  2  the command line is wrong, or a change was asked for without --yes\n"
                                  "  3  there is no state, or the telephone cannot be opened\n"
                                  "  4  a figure that was named is not available\n"
                                  "  5  the credit limit is reached, or the credit used up\n"
                                  "  6  the figure of --alert is reached\n"
                                  "  7  a file, or the output, cannot be read or written, or has a mistake\n");

struct Command {
    const char *name;
    int least; ///< words after it
    int most;
    bool changes;
};
constexpr std::array commands{
    Command{"figures", 0, 99, false}, Command{"settings", 0, 0, false}, Command{"calls", 0, 0, false},
    Command{"sessions", 0, 0, false}, Command{"totals", 0, 0, false},   Command{"reset", 1, 1, true},
    Command{"delete", 1, 1, true},    Command{"export", 1, 1, false},   Command{"import", 1, 1, false},
};

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        Text::tr(description)
            .arg(resetNames().join(QStringLiteral(", ")), figureNames().join(QStringLiteral(", "))));
    parser.addHelpOption();
    parser.addVersionOption();
    const QString state = handset::defaultStateDirectory();
    parser.addOptions({
        {QStringLiteral("state"), Text::tr("The telephone's state is in DIR. Default: %1").arg(state),
         QStringLiteral("DIR"), state},
        {QStringLiteral("backend"),
         Text::tr("The telephone: %1, or the path of a library that has one. Default: simulated.")
             .arg(handset::backendNames().join(QStringLiteral(", "))),
         QStringLiteral("NAME"), QStringLiteral("simulated")},
        {QStringLiteral("language"),
         Text::tr("Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.")
             .arg(language::languageNames().join(QStringLiteral(", "))),
         QStringLiteral("NAME")},
        {QStringLiteral("json"), Text::tr("Print JSON.")},
        {QStringLiteral("csv"), Text::tr("Print comma-separated values.")},
        {QStringLiteral("yes"), Text::tr("Reset or delete indeed; nothing is asked.")},
        {QStringLiteral("watch"), Text::tr("Print anew whenever something changes, until a signal comes.")},
        {QStringLiteral("by"), Text::tr("Totals by day, month or cycle."), QStringLiteral("PERIOD"),
         QStringLiteral("month")},
        {QStringLiteral("cycle-day"), Text::tr("The billing cycle begins on day N, 1 to 28; totals by cycle."),
         QStringLiteral("N"), QStringLiteral("1")},
        {QStringLiteral("keep-calls"), Text::tr("With delete all: keep the calls of the last DAYS days."),
         QStringLiteral("DAYS")},
        {QStringLiteral("alert"),
         Text::tr("COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N "
                  "seconds or more, or N bytes or more have gone both ways."),
         QStringLiteral("KIND N")},
    });
    parser.addPositionalArgument(QStringLiteral("command"), Text::tr("What to do."), QStringLiteral("[command]"));
}

// "--alert COST 5" has two values, of which the parser takes one.
void joinAlert(QStringList &arguments)
{
    const qsizetype place = arguments.indexOf(QStringLiteral("--alert"));
    if (place < 0 || place + 2 >= arguments.size())
        return;
    const QString kind = arguments.takeAt(place + 1);
    const QString amount = arguments.takeAt(place + 1);
    arguments[place] = QStringLiteral("--alert=%1 %2").arg(kind, amount);
}

QString readAlert(const QCommandLineParser &parser, Options &options)
{
    if (!parser.isSet(QStringLiteral("alert")))
        return {};
    const QStringList words = parser.value(QStringLiteral("alert")).split(u' ');
    const qsizetype kind =
        QStringList{QStringLiteral("COST"), QStringLiteral("TIME"), QStringLiteral("BYTES")}.indexOf(
            words.constFirst().toUpper());
    bool isNumber = false;
    const double amount = words.value(1).replace(u',', u'.').toDouble(&isNumber);
    if (kind < 0 || words.size() != 2 || !isNumber || !std::isfinite(amount) || amount < 0)
        return Text::tr("Option 'alert' wants COST, TIME or BYTES, and a number.");
    options.alert = Alert{static_cast<Alert::Kind>(kind), amount};
    return {};
}

QString readPeriod(const QCommandLineParser &parser, Options &options)
{
    const QString by = parser.value(QStringLiteral("by"));
    const qsizetype place =
        QStringList{QStringLiteral("day"), QStringLiteral("month"), QStringLiteral("cycle")}.indexOf(by);
    if (place < 0)
        return Text::tr("Option 'by' wants day, month or cycle.");
    options.by = static_cast<By>(place);
    if (!parser.isSet(QStringLiteral("cycle-day")))
        return {};
    bool isNumber = false;
    options.cycleDay = parser.value(QStringLiteral("cycle-day")).toInt(&isNumber);
    if (!isNumber || options.cycleDay < 1 || options.cycleDay > 28)
        return Text::tr("Option 'cycle-day' wants a day from 1 to 28.");
    if (parser.isSet(QStringLiteral("by")) && options.by != By::Cycle)
        return Text::tr("Option 'cycle-day' goes with --by cycle.");
    options.by = By::Cycle;
    return {};
}

QString readKeptDays(const QCommandLineParser &parser, Options &options)
{
    if (!parser.isSet(QStringLiteral("keep-calls")))
        return {};
    options.keptDays = handset::keptDaysFrom(parser.value(QStringLiteral("keep-calls")));
    if (!options.keptDays)
        return Text::tr("Option 'keep-calls' wants a number of days.");
    if (parser.positionalArguments() != QStringList{QStringLiteral("delete"), QStringLiteral("all")})
        return Text::tr("Option 'keep-calls' goes with delete all.");
    return {};
}

QString readCommand(const QCommandLineParser &parser, Options &options)
{
    options.words = parser.positionalArguments();
    if (!options.words.isEmpty())
        options.command = options.words.takeFirst();
    const auto isIt = [&](const Command &command) { return options.command == QLatin1String(command.name); };
    const auto *const command = std::find_if(commands.begin(), commands.end(), isIt);
    if (command == commands.end())
        return Text::tr("There is no command '%1'.").arg(options.command);
    if (options.words.size() < command->least || options.words.size() > command->most)
        return Text::tr("The command '%1' has a word missing or too many.").arg(options.command);
    const bool isFigures = options.command == QLatin1String("figures");
    if (isFigures || options.command == QLatin1String("reset"))
        for (const QString &word : options.words)
            if (!(isFigures ? figureNames() : resetNames()).contains(word))
                return Text::tr("There is no '%1' to show or to reset.").arg(word);
    if ((parser.isSet(QStringLiteral("watch")) || options.alert) && !isFigures)
        return Text::tr("Options 'watch' and 'alert' go with figures.");
    if (command->changes && !options.isSure)
        return Text::tr("Nothing was changed: '%1' wants --yes.").arg(options.command);
    return {};
}

QString read(const QCommandLineParser &parser, Options &options)
{
    options.stateDirectory = parser.value(QStringLiteral("state"));
    options.backend = parser.value(QStringLiteral("backend"));
    if (options.stateDirectory.isEmpty() || options.backend.isEmpty())
        return Text::tr("Options 'state' and 'backend' want a value.");
    const QString language = parser.value(QStringLiteral("language"));
    if (parser.isSet(QStringLiteral("language")) && !language::languageNames().contains(language))
        return Text::tr("Unknown language '%1'; there is: %2.")
            .arg(language, language::languageNames().join(QStringLiteral(", ")));
    if (parser.isSet(QStringLiteral("json")) && parser.isSet(QStringLiteral("csv")))
        return Text::tr("Options 'json' and 'csv' do not go together.");
    if (parser.isSet(QStringLiteral("json")))
        options.format = Format::Json;
    else if (parser.isSet(QStringLiteral("csv")))
        options.format = Format::Csv;
    options.isSure = parser.isSet(QStringLiteral("yes"));
    options.watches = parser.isSet(QStringLiteral("watch"));
    if (QString mistake = readAlert(parser, options); !mistake.isEmpty())
        return mistake;
    if (QString mistake = readPeriod(parser, options); !mistake.isEmpty())
        return mistake;
    if (QString mistake = readKeptDays(parser, options); !mistake.isEmpty())
        return mistake;
    return readCommand(parser, options);
}

} // namespace

CommandLine parse(QStringList arguments)
{
    QCommandLineParser parser;
    describe(parser);
    joinAlert(arguments);
    if (!parser.parse(arguments))
        return {{}, {}, parser.errorText()};
    if (parser.isSet(QStringLiteral("help")))
        return {{}, parser.helpText() + Text::tr(exitCodes), {}};
    if (parser.isSet(QStringLiteral("version")))
        return {{}, QStringLiteral("kavmeter %1\n").arg(QCoreApplication::applicationVersion()), {}};
    Options options;
    if (QString mistake = read(parser, options); !mistake.isEmpty())
        return {{}, {}, mistake};
    return {options, {}, {}};
}

} // namespace meter
