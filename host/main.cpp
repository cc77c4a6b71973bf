// kavrecentcalls, the recent-calls application of the phone.

#include "handset/Handset.h"
#include "host/AccessibilityBus.h"
#include "host/ExitCode.h"
#include "host/Options.h"
#include "host/PhoneWindow.h"
#include "host/QtStart.h"
#include "host/ScreenLibrary.h"
#include "host/Skin.h"
#include "host/WindowPlace.h"
#include "host/faults/FaultyHandset.h"
#include "host/tour/TourPlayer.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "language/ReadFile.h"
#include "log/aplog.h"
#include "process/EndSignals.h"
#include "qt/BusGuard.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtCore/QLocale>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace {

using namespace host;
using process::EndSignals;
using process::guardStandardStreams;

constexpr qint64 largestScript = qint64{4} * 1024 * 1024;

void nameProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("kavrecentcalls"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAV_VERSION));
}

int complain(int code, const QString &message)
{
    QTextStream(stderr) << "kavrecentcalls: " << message << Qt::endl;
    return code;
}

int print(const QString &text)
{
    QTextStream output(stdout);
    output << text << Qt::flush;
    if (output.status() == QTextStream::Ok)
        return ExitSuccess;
    return complain(ExitNotWritten, QStringLiteral("The standard output cannot be written to."));
}

// With the texts of the user's language, for as long as there is an application object.
QString qtOptionOnTour(const QStringList &arguments, const QString &option)
{
    language::Catalogue catalogue;
    catalogue.installLanguage(language::languageFor(arguments));
    return QCoreApplication::translate("kavrecentcalls", "Option '%1' of Qt does not go with option 'tour'.")
               .arg(option) +
           u' ' + QCoreApplication::translate("kavrecentcalls", "See kavrecentcalls --help.");
}

// Before the GUI's application object, which would want a display even for --help. `ofQt` becomes what that is given.
CommandLine readCommandLine(int argc, char **argv, QStringList &ofQt)
{
    const QCoreApplication application(argc, argv);
    nameProgram();
    const DividedArguments arguments = divideArguments(QCoreApplication::arguments());
    ofQt = arguments.ofQt;
    CommandLine line = parseCommandLine(arguments.own);
    // Its pictures are the same everywhere.
    if (line.options && line.options->isTour() && ofQt.size() > 1)
        return {{}, {}, qtOptionOnTour(arguments.own, ofQt[1])};
    return line;
}

QString namedPlatform()
{
    return qEnvironmentVariable("QT_QPA_PLATFORM");
}

// The option comes before the environment, as for Qt.
void namePlatform(QStringList &ofQt)
{
    for (qsizetype index = 1; index < ofQt.size(); ++index) {
        const QString name = ofQt[index].section(u'=', 0, 0);
        if (name != QLatin1StringView("-platform") && name != QLatin1StringView("--platform"))
            continue;
        const bool isBehind = !ofQt[index].contains(u'=');
        const QString platform = isBehind ? ofQt.value(index + 1) : ofQt[index].section(u'=', 1);
        qputenv("QT_QPA_PLATFORM", platform.toLocal8Bit());
        ofQt.remove(index, std::min(isBehind ? 2 : 1, static_cast<int>(ofQt.size() - index)));
        return;
    }
}

bool hasPlatform()
{
    return !namedPlatform().isEmpty();
}

// Asked by the library that Qt will use, for Qt itself only aborts. Where that library is missing, Qt says so.
bool displayAnswers()
{
    QLibrary xcb(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<void *(*)(const char *, int *)>(xcb.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<int (*)(void *)>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(void *)>(xcb.resolve("xcb_disconnect"));
    if (!connect || !hasError || !disconnect)
        return true;
    // Kept until the program ends: a server may begin anew, or end, when its last client goes before Qt has come.
    static const std::unique_ptr<void, void (*)(void *)> connection(connect(nullptr, nullptr), disconnect);
    return hasError(connection.get()) == 0;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") && displayAnswers();
}

// Where that alone is named: with both, Qt is left to choose. Whether the compositor answers, Qt says itself.
bool hasCompositor()
{
    return qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QString missingDisplay(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    language::Catalogue catalogue;
    catalogue.installLanguage(language::languageFor(QCoreApplication::arguments()));
    const QString name = qEnvironmentVariable("DISPLAY");
    if (name.isEmpty())
        return QCoreApplication::translate("kavrecentcalls",
                                           "There is no display to show the phone on; --tour DIR needs none.");
    return QCoreApplication::translate("kavrecentcalls",
                                       "The display \"%1\" cannot be reached; --tour DIR needs none.")
        .arg(name);
}

// Photographs must come out the same on every machine.
void fixSurroundings(bool needsNoDisplay)
{
    if (!hasPlatform() && (needsNoDisplay || !hasDisplay()))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    qunsetenv("QT_STYLE_OVERRIDE");
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setDesktopSettingsAware(false);
}

int startTrace(const QString &file)
{
    const QByteArray path = file.isEmpty() ? QByteArrayLiteral("/dev/null") : QFile::encodeName(file);
    const int error = libaplog_open(path.constData());
    if (error == 0)
        return ExitSuccess;
    return complain(ExitNoTrace,
                    QCoreApplication::translate("kavrecentcalls", "The trace file \"%1\" cannot be opened: %2.")
                        .arg(file, QString::fromLocal8Bit(std::strerror(error))));
}

// Photographs do not depend on whose machine they are made on.
QString catalogueFile(const Options &options)
{
    if (!options.translation.isEmpty())
        return options.translation;
    if (!options.language.isEmpty())
        return language::catalogueOf(options.language);
    const bool isPhotograph = options.isTour() || !options.photo.isEmpty();
    return isPhotograph ? QString()
                        : language::catalogueOf(language::suitableLanguage(QLocale::system().uiLanguages()));
}

int loadTranslation(language::Catalogue &catalogue, const QString &file)
{
    const QString problem = file.isEmpty() ? QString() : catalogue.install(file);
    return problem.isEmpty() ? ExitSuccess : complain(ExitNoTranslation, problem);
}

int loadScreens(ScreenLibrary &library, const QString &name)
{
    const QString problem = library.load(name);
    return problem.isEmpty() ? ExitSuccess : complain(ExitNoPlugin, problem);
}

// --- the tour

int readScript(const QString &fileName, tour::Script &script)
{
    QByteArray text;
    const QString problem = language::readFile(fileName, largestScript, text);
    if (!problem.isEmpty())
        return complain(ExitBadScript,
                        QCoreApplication::translate("kavrecentcalls", "The script \"%1\" cannot be read: %2.")
                            .arg(fileName, problem));
    const QString name = fileName.startsWith(u':') ? QFileInfo(fileName).fileName() : fileName;
    script = tour::parseScript(name, QString::fromUtf8(text));
    for (const QString &mistake : std::as_const(script.mistakes))
        complain(ExitBadScript, mistake);
    return script.mistakes.isEmpty() ? ExitSuccess : ExitBadScript;
}

// The shipped tour says what is to be seen in English; in another language it is for its photographs.
void passOverEnglish(const Options &options, tour::Script &script)
{
    if (options.isInEnglish() || !options.script.startsWith(u':'))
        return;
    script.steps.removeIf(
        [](const tour::Step &step) { return std::holds_alternative<tour::Expect>(step.action); });
}

int runTour(const Options &options, const EndSignals &endSignals)
{
    ScreenLibrary library;
    if (const int code = loadScreens(library, options.plugin))
        return code;
    tour::Script script;
    if (const int code = readScript(options.script, script))
        return code;
    passOverEnglish(options, script);
    if (const int code = startTrace(options.traceFile))
        return code;
    QTextStream output(stdout);
    QTextStream errors(stderr);
    tour::TourPlayer player(library, options, output, errors, [&endSignals] { return endSignals.haveCome(); });
    QObject::connect(&endSignals, &EndSignals::asked, &player, &tour::TourPlayer::interrupt);
    return player.play(script);
}

// --- the window

/// No exit code: the window is to be shown again, with a new telephone.
constexpr int beginsAnew = -1;

handset::Settings handsetSettings(const Options &options, PhoneWindow &window, const EndSignals &endSignals)
{
    handset::Settings settings;
    settings.backend = options.backend;
    settings.stateDirectory = options.stateDirectory;
    settings.keptDays = options.keptDays;
    // Who names a modem's telephone rather waits than is refused it.
    settings.patience.bus = settings.patience.opening;
    settings.tell = [](const QString &notice) { complain(ExitSuccess, notice); };
    settings.progress = [](const QString &step, int percent) {
        complain(ExitSuccess, QStringLiteral("%1: %2 %").arg(step).arg(percent));
    };
    settings.isGivenUp = [&endSignals] { return endSignals.haveCome(); };
    window.listen(settings);
    return settings;
}

// Nothing and the exit code where that fails. Loads the screens, too, which want the handset. `findings` are sentences
// that the window is to show, too.
std::optional<PhoneWindow::OpenedHandset> openHandset(const Options &options, const QStringList &findings,
                                                      ScreenLibrary &library, PhoneWindow &window,
                                                      const EndSignals &endSignals, int &code)
{
    code = loadScreens(library, options.plugin);
    // Opening is told only once what it replaced: what can fail is done before it. A directory that opening makes, in which
    // the trace may lie, has had nothing to replace.
    const bool isTraceLater = !options.stateDirectory.isEmpty() && !QFileInfo(options.stateDirectory).isDir();
    if (code == ExitSuccess && !isTraceLater)
        code = startTrace(options.traceFile);
    if (code != ExitSuccess)
        return {};
    const handset::Opened opened = handset::open(handsetSettings(options, window, endSignals));
    if (!opened.handset) {
        code = complain(endSignals.haveCome() ? ExitSuccess : ExitNoHandset, opened.error);
        return {};
    }
    if (!opened.notice.isEmpty())
        complain(ExitSuccess, opened.notice);
    const QString notice = (findings + QStringList(opened.notice)).join(u' ').trimmed();
    if (isTraceLater)
        code = startTrace(options.traceFile);
    if (code != ExitSuccess)
        return {};
    const auto installed = std::make_shared<FaultyHandset>(opened.handset);
    handset::install(installed);
    return PhoneWindow::OpenedHandset{opened.handset, options.stateDirectory, notice, &installed->faults(),
                                      [] { QCoreApplication::exit(beginsAnew); }};
}

int photographWindow(PhoneWindow &window, const QString &file)
{
    QCoreApplication::processEvents();
    if (window.grab().save(file, "PNG"))
        return ExitSuccess;
    return complain(
        ExitNotWritten,
        QCoreApplication::translate("kavrecentcalls", "The photograph \"%1\" cannot be written.").arg(file));
}

int showWindow(const Options &options, const QStringList &findings, const EndSignals &endSignals)
{
    ScreenLibrary library;
    int openingCode = ExitSuccess;
    PhoneWindow window(
        library, [&] { return openHandset(options, findings, library, window, endSignals, openingCode); },
        options.displayAlone ? PhoneWindow::Form::DisplayAlone : PhoneWindow::Form::OnDesk);
    QObject::connect(&endSignals, &EndSignals::asked, &window, [&window] {
        window.close();
        QCoreApplication::exit(ExitSuccess); // also while something else is open
    });
    window.choosePage(options.page);
    if (options.photo.isEmpty())
        takePlace(window);
    window.show();
    const bool needsHandset = !options.screen.isEmpty() || !options.photo.isEmpty();
    if (needsHandset && !window.complete())
        return openingCode;
    if (!options.screen.isEmpty() && !window.openScreen(screenIndex(options.screen)))
        return complain(ExitNoPlugin,
                        QCoreApplication::translate("kavrecentcalls", "The plug-in gives no screen \"%1\".")
                            .arg(options.screen));
    if (!options.photo.isEmpty())
        return photographWindow(window, options.photo);
    const int code = endSignals.haveCome() ? ExitSuccess : QApplication::exec();
    keepPlace(window);
    return openingCode == ExitSuccess ? code : openingCode;
}

// What the user should know of it. The telephone that there was is not open any more.
QString renewTelephone(const Options &options)
{
    if (options.stateDirectory.isEmpty())
        return QCoreApplication::translate("kavrecentcalls", "A new telephone has begun.");
    const handset::PutAside before = handset::putAside(options.stateDirectory);
    if (!before.error.isEmpty())
        return QCoreApplication::translate("kavrecentcalls", "There is no new telephone, but the one before: %1.")
            .arg(before.error);
    return QCoreApplication::translate("kavrecentcalls",
                                       "A new telephone has begun. The one before is kept as \"%1\".")
        .arg(before.kept);
}

int runWindow(const Options &options, const QStringList &findings, const EndSignals &endSignals)
{
    QStringList told = findings;
    Options shown = options;
    for (;;) {
        const int code = showWindow(shown, told, endSignals);
        handset::install(nullptr);
        libaplog_close();
        if (code != beginsAnew)
            return code;
        told = {renewTelephone(options)};
        complain(ExitSuccess, told.constFirst());
        shown.screen.clear();
    }
}

int run(const Options &options, const QStringList &findings)
{
    const EndSignals endSignals; // outlives the handset, whose call is to be written
    language::Catalogue catalogue;
    if (const int code = loadTranslation(catalogue, catalogueFile(options)))
        return code;
    const int code = options.isTour() ? runTour(options, endSignals) : runWindow(options, findings, endSignals);
    libaplog_close();
    return code;
}

} // namespace

// What the starting program calls.
extern "C" Q_DECL_EXPORT int runRecentCalls(int argc, char **argv)
{
    guardStandardStreams();
    QStringList ofQt;
    const CommandLine line = readCommandLine(argc, argv, ofQt);
    if (!line.error.isEmpty())
        return complain(ExitBadCommandLine, line.error);
    if (!line.options)
        return print(line.output);
    const Options &options = *line.options;
    namePlatform(ofQt);
    if (options.isTour() || !options.photo.isEmpty())
        fixSurroundings(options.isTour());
    else if (!hasPlatform() && hasCompositor())
        qputenv("QT_QPA_PLATFORM", "wayland");
    else if (!hasPlatform() && !hasDisplay())
        return complain(ExitNoDisplay, missingDisplay(argc, argv));
    // The phone and the SIM card write 0.23 everywhere; the panel beside them does as they do.
    QLocale::setDefault(QLocale::c());
    BusGuard buses;
    ArgumentVector arguments(ofQt);
    std::optional<PlatformGuard> guard(std::in_place, "kavrecentcalls", namedPlatform());
    const QApplication application(arguments.count(), arguments.values());
    guard.reset();
    chooseSkin(options.skin);
    nameProgram();
    buses.guardAccessibility(announcedAccessibilityBus());
    for (const QString &finding : buses.notices())
        complain(ExitSuccess, finding);
    return run(options, buses.notices());
}
