// kavcallrecorder records the calls and data connections of a modem while no window is open.
#include "handset/Handset.h"
#include "process/EndSignals.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

namespace {

/// Those of the phone's window.
enum ExitCode : int { ExitSuccess = 0, ExitBadCommandLine = 2, ExitNoHandset = 3 };

struct Options {
    QString backend;
    QString stateDirectory;
};

int complain(int code, const QString &message)
{
    QTextStream(stderr) << "kavcallrecorder: " << message << Qt::endl;
    return code;
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Records the calls and data connections of a modem while no window is open."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(
        {QStringLiteral("backend"),
         QStringLiteral("The telephone: %1, the path of a library that has one, or auto: the first that has "
                        "a modem, else modemmanager, which waits for one. Default: auto.")
             .arg(handset::backendNames().join(QStringLiteral(", "))),
         QStringLiteral("NAME"), QStringLiteral("auto")});
    parser.addOption({QStringLiteral("state"),
                      QStringLiteral("Record in DIR. Default: %1").arg(handset::defaultStateDirectory()),
                      QStringLiteral("DIR"), handset::defaultStateDirectory()});
}

/// Of nothing but the simulation there is nothing to record.
QString modemFor(const QString &backend)
{
    if (backend != QLatin1String("auto"))
        return backend;
    const QString present = handset::presentBackend();
    return present == handset::Settings().backend ? QStringLiteral("modemmanager") : present;
}

int record(const Options &options, const process::EndSignals &endSignals)
{
    handset::Settings settings;
    settings.backend = modemFor(options.backend);
    settings.stateDirectory = options.stateDirectory;
    settings.tell = [](const QString &notice) { complain(ExitSuccess, notice); };
    settings.isGivenUp = [&endSignals] { return endSignals.haveCome(); };
    handset::Opened opened = handset::open(settings);
    if (!opened.handset)
        return complain(endSignals.haveCome() ? ExitSuccess : ExitNoHandset, opened.error);
    if (!opened.notice.isEmpty())
        complain(ExitSuccess, opened.notice);
    // The installed one sends the broadcasts.
    handset::install(std::move(opened.handset));
    QObject::connect(&endSignals, &process::EndSignals::asked, qApp, &QCoreApplication::quit);
    const int code = endSignals.haveCome() ? ExitSuccess : QCoreApplication::exec();
    // What runs is written.
    handset::install(nullptr);
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    process::guardStandardStreams();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavcallrecorder"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAV_VERSION));
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return complain(ExitBadCommandLine, parser.errorText() + QStringLiteral(" See kavcallrecorder --help."));
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    const Options options{parser.value(QStringLiteral("backend")), parser.value(QStringLiteral("state"))};
    if (options.backend.isEmpty() || options.stateDirectory.isEmpty() || !parser.positionalArguments().isEmpty())
        return complain(ExitBadCommandLine, QStringLiteral("There is a value missing or too many. See "
                                                           "kavcallrecorder --help."));
    const process::EndSignals endSignals; // outlives the handset, whose call is to be written
    return record(options, endSignals);
}
