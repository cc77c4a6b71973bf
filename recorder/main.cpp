// kavcallrecorder records the calls and data connections of a modem while no window is open.
#include "handset/CallRetention.h"
#include "handset/Handset.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "process/EndSignals.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <utility>

namespace {

/// What it says, in the catalogues' context of the program.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(kavcallrecorder)
};

/// Those of the phone's window.
enum ExitCode : int { ExitSuccess = 0, ExitBadCommandLine = 2, ExitNoHandset = 3 };

constexpr const char *exitCodes =
    QT_TRANSLATE_NOOP("kavcallrecorder", "\nExit codes:\n"
                                         "  0  a signal has ended it, and what ran is written\n"
                                         "  2  the command line is wrong\n"
                                         "  3  there is no system bus, or the telephone cannot be opened\n");

/// Nobody waits for the recorder, and where a machine has just been started its bus may be busy.
constexpr int busPatienceMs = 10'000;

struct Options {
    QString backend;
    QString stateDirectory;
    std::optional<int> keptDays;
};

int complain(int code, const QString &message)
{
    QTextStream(stderr) << "kavcallrecorder: " << message << Qt::endl;
    return code;
}

int complainOfCommandLine(const QString &mistake)
{
    return complain(ExitBadCommandLine, mistake + u' ' + Text::tr("See kavcallrecorder --help."));
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        Text::tr("Records the calls and data connections of a modem while no window is open."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(
        {QStringLiteral("backend"),
         Text::tr("The telephone: %1, the path of a library that has one, or auto: the first over which a "
                  "modem is there, now or later. Default: auto.")
             .arg(handset::backendNames().join(QStringLiteral(", "))),
         QStringLiteral("NAME"), QStringLiteral("auto")});
    parser.addOption({QStringLiteral("state"),
                      Text::tr("Record in DIR. Default: %1").arg(handset::defaultStateDirectory()),
                      QStringLiteral("DIR"), handset::defaultStateDirectory()});
    parser.addOption({QStringLiteral("keep-calls"),
                      Text::tr("Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when "
                               "recording begins and once a day, and stay in the totals. Default: all are kept."),
                      QStringLiteral("DAYS")});
}

/// Records what a modem does; with "auto" that of the first daemon that has one, for which it waits.
class Recorder
{
public:
    Recorder(Options given, const process::EndSignals &ends)
        : options(std::move(given))
        , endSignals(ends)
    {
        QObject::connect(&endSignals, &process::EndSignals::asked, qApp, &QCoreApplication::quit);
    }

    int run()
    {
        const bool isNamed = options.backend != QLatin1String("auto");
        if (const QString error = isNamed ? open(options.backend) : findModem(); !error.isEmpty())
            return complain(endSignals.haveCome() ? ExitSuccess : ExitNoHandset, error);
        const int code = endSignals.haveCome() ? ExitSuccess : QCoreApplication::exec();
        // What runs is written.
        handset::install(nullptr);
        return code;
    }

private:
    /// The simulation, which is there always, is no modem: of it there is nothing to record.
    QString findModem()
    {
        const QString present = handset::presentBackend();
        if (present != handset::Settings().backend)
            return open(present);
        awaited = handset::awaitModem([this](const QString &backend) {
            awaited = {};
            if (const QString error = open(backend); !error.isEmpty())
                QCoreApplication::exit(complain(endSignals.haveCome() ? ExitSuccess : ExitNoHandset, error));
        });
        if (!awaited.watch)
            return awaited.error;
        if (!awaited.error.isEmpty())
            complain(ExitSuccess, Text::tr("%1; it is looked for.").arg(awaited.error));
        return {};
    }

    QString open(const QString &backend) const
    {
        handset::Settings settings;
        settings.backend = backend;
        settings.stateDirectory = options.stateDirectory;
        settings.patience.bus = busPatienceMs;
        settings.keptDays = options.keptDays;
        settings.tell = [](const QString &notice) { complain(ExitSuccess, notice); };
        settings.progress = [](const QString &step, int percent) {
            complain(ExitSuccess, QStringLiteral("%1: %2 %").arg(step).arg(percent));
        };
        settings.isGivenUp = [this] { return endSignals.haveCome(); };
        handset::Opened opened = handset::open(settings);
        if (!opened.notice.isEmpty())
            complain(ExitSuccess, opened.notice);
        // The installed one sends the broadcasts.
        if (opened.handset)
            handset::install(std::move(opened.handset));
        return opened.error;
    }

    const Options options;
    const process::EndSignals &endSignals;
    handset::Awaited awaited;
};

} // namespace

int main(int argc, char **argv)
{
    process::guardStandardStreams();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavcallrecorder"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAV_VERSION));
    language::Catalogue catalogue;
    const QString language = language::languageFor(QCoreApplication::arguments());
    if (const QString problem = catalogue.installLanguage(language); !problem.isEmpty())
        complain(ExitSuccess, problem); // what is recorded is worth more than its language
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return complainOfCommandLine(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        QTextStream(stdout) << parser.helpText() << Text::tr(exitCodes);
        return ExitSuccess;
    }
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    const QString days = parser.value(QStringLiteral("keep-calls"));
    const Options options{parser.value(QStringLiteral("backend")), parser.value(QStringLiteral("state")),
                          handset::keptDaysFrom(days)};
    if (parser.isSet(QStringLiteral("keep-calls")) && !options.keptDays)
        return complainOfCommandLine(
            Text::tr("Option 'keep-calls' wants a number of days, 0 to %1.").arg(handset::mostKeptDays));
    if (options.backend.isEmpty() || options.stateDirectory.isEmpty() || !parser.positionalArguments().isEmpty())
        return complainOfCommandLine(Text::tr("There is a value missing or too many."));
    const process::EndSignals endSignals; // outlives the handset, whose call is to be written
    return Recorder(options, endSignals).run();
}
