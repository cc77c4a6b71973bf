// kavmeter shows the meters of the phone in a shell.
#include "calllog/OpenLedger.h"
#include "handset/AdviceOfCharge.h"
#include "handset/CallRetention.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "handset/UpdateBroadcast.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "meter/CommandLine.h"
#include "meter/ExitCode.h"
#include "meter/Figures.h"
#include "meter/Rows.h"
#include "meter/Text.h"
#include "meter/Transfer.h"
#include "meter/Watch.h"
#include "process/EndSignals.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTextStream>

namespace {

using namespace meter;

int complain(int code, const QString &message)
{
    QTextStream(stderr) << "kavmeter: " << message << Qt::endl;
    return code;
}

QString nameOf(int status)
{
    switch (static_cast<handset::Status>(status)) {
    case handset::Success:
        return QStringLiteral("Success");
    case handset::InvalidArgument:
        return QStringLiteral("InvalidArgument");
    case handset::NotAvailable:
        return QStringLiteral("NotAvailable");
    case handset::StorageFailed:
        return QStringLiteral("StorageFailed");
    case handset::WrongState:
        return QStringLiteral("WrongState");
    case handset::TextTooLong:
        return QStringLiteral("TextTooLong");
    case handset::NotAllowed:
        return QStringLiteral("NotAllowed");
    case handset::RecordedElsewhere:
        return QStringLiteral("RecordedElsewhere");
    }
    return QStringLiteral("status %1").arg(status);
}

int exitCodeOf(int status)
{
    if (status == handset::Success)
        return ExitSuccess;
    return status == handset::NotAvailable ? ExitNotAvailable : ExitFailed;
}

int print(const QByteArray &text)
{
    return write(text) ? ExitSuccess : complain(ExitBadFile, Text::tr("The output cannot be written."));
}

// Who only looks makes no state: what is not there is an error.
QString missing(const Options &options)
{
    if (QFile::exists(QDir(options.stateDirectory).filePath(QStringLiteral("calllog.db"))))
        return {};
    return Text::tr("There is no state in \"%1\".").arg(options.stateDirectory);
}

template <typename Act>
int withHandset(const Options &options, Act act)
{
    if (const QString error = missing(options); !error.isEmpty())
        return complain(ExitNoHandset, error);
    handset::Settings settings;
    settings.backend = options.backend;
    settings.stateDirectory = options.stateDirectory;
    settings.patience.bus = settings.patience.opening; // as the window does
    const handset::Opened opened = handset::open(settings);
    if (!opened.notice.isEmpty())
        complain(ExitSuccess, opened.notice);
    return opened.handset ? act(*opened.handset) : complain(ExitNoHandset, opened.error);
}

template <typename Act>
int withLedger(const Options &options, Act act)
{
    if (const QString error = missing(options); !error.isEmpty())
        return complain(ExitNoHandset, error);
    const handset::calllog::OpenedLedger opened =
        handset::calllog::openLedger(options.stateDirectory, std::make_shared<handset::SystemClock>());
    if (!opened.notice.isEmpty())
        complain(ExitSuccess, opened.notice);
    return opened.ledger ? act(*opened.ledger) : complain(ExitNoHandset, opened.error);
}

// Both as they are told, so that what a screen shows as reached is.
bool isLimitReached(handset::Handset &handset)
{
    const auto amountOf = [&](const char *name) {
        const std::vector<Figure> figures = figuresOf(handset, {QString::fromLatin1(name)});
        bool isNumber = false;
        const double amount = figures.front().cell.text.toDouble(&isNumber);
        return isNumber ? std::optional(amount) : std::nullopt;
    };
    if (const std::optional<double> credit = amountOf("credit"); credit && *credit <= 0)
        return true;
    QString maximum;
    bool isOn = false;
    handset::AdviceOfCharge *const advice = handset.adviceOfCharge();
    if (!advice || advice->meterMaximum(maximum, isOn) != handset::Success || !isOn)
        return false;
    // The limit is told exactly, the cost with two decimals.
    const std::optional<double> cost = amountOf("all-cost");
    return cost && *cost + 0.005 > maximum.toDouble();
}

// Nothing where there is no such figure.
std::optional<bool> isReached(handset::Handset &handset, const Alert &alert)
{
    const char *const names[] = {"all-cost", "all-time", "bytes-total"};
    const Figure figure = figuresOf(handset, {QString::fromLatin1(names[alert.kind])}).front();
    if (figure.status != handset::Success)
        return std::nullopt;
    return figure.cell.value.toVariant().toDouble() >= alert.amount;
}

int judge(handset::Handset &handset, const Options &options, const std::vector<Figure> &figures)
{
    for (const Figure &figure : figures)
        if (figure.status != handset::Success && figure.status != handset::NotAvailable)
            return complain(ExitFailed, QStringLiteral("%1: %2.").arg(figure.name, nameOf(figure.status)));
    if (options.alert) {
        const std::optional<bool> reached = isReached(handset, *options.alert);
        if (!reached)
            return complain(ExitNotAvailable, Text::tr("The figure of the alert is not available."));
        if (*reached)
            return ExitAlert;
    }
    const auto isMissing = [](const Figure &figure) { return figure.status == handset::NotAvailable; };
    if (!options.words.isEmpty() && std::any_of(figures.begin(), figures.end(), isMissing))
        return ExitNotAvailable;
    return isLimitReached(handset) ? ExitLimitReached : ExitSuccess;
}

// `shown` is what was printed last, and is not printed again.
int showFigures(const Options &options, QByteArray &shown)
{
    return withHandset(options, [&](handset::Handset &handset) {
        const std::vector<Figure> figures = figuresOf(handset, options.words);
        const QByteArray text = meter::print(tableOf(figures), options.format);
        const int code = text == shown ? int{ExitSuccess} : print(text);
        shown = text;
        return code == ExitSuccess ? judge(handset, options, figures) : code;
    });
}

int showSettings(const Options &options)
{
    return withHandset(options, [&](handset::Handset &handset) {
        const std::vector<Figure> settings = settingsOf(handset);
        const int code = print(meter::print(tableOf(settings), options.format));
        return code == ExitSuccess ? exitCodeOf(settings.front().status) : code;
    });
}

int showRows(const Options &options)
{
    return withLedger(options, [&](handset::calllog::Ledger &ledger) {
        QList<handset::calllog::ListedCall> calls;
        QList<handset::calllog::ListedSession> sessions;
        int status = handset::calllog::listCalls(ledger, {}, calls);
        if (status == handset::Success)
            status = handset::calllog::listSessions(ledger, {}, sessions);
        if (status != handset::Success)
            return complain(ExitFailed, Text::tr("The call log cannot be read."));
        if (options.command == QLatin1String("calls"))
            return print(meter::print(tableOf(calls), options.format));
        if (options.command == QLatin1String("sessions"))
            return print(meter::print(tableOf(sessions), options.format));
        return print(meter::print(totalsOf(calls, sessions, options.by, options.cycleDay), options.format));
    });
}

int report(const Options &options, int status)
{
    if (status == handset::Success) {
        handset::broadcastChange();
        return ExitSuccess;
    }
    return complain(exitCodeOf(status), Text::tr("Nothing was changed: %1 %2: %3.")
                                            .arg(options.command, options.words.constFirst(), nameOf(status)));
}

int resetFigure(const Options &options)
{
    return withHandset(options, [&](handset::Handset &handset) {
        return report(options, reset(handset, options.words.constFirst()));
    });
}

int deleteRows(const Options &options)
{
    bool isNumber = false;
    const QString word = options.words.constFirst();
    const qint64 id = word.toLongLong(&isNumber);
    if (word != QLatin1String("all") && (!isNumber || id < 1))
        return complain(ExitBadCommandLine, Text::tr("delete wants the id of a call, or all."));
    return withLedger(options, [&](handset::calllog::Ledger &ledger) {
        qint64 count = 0;
        handset::calllog::Period period;
        if (options.keptDays)
            period.until = handset::keptSince(*options.keptDays, QDateTime::currentMSecsSinceEpoch());
        return report(options, id > 0 ? handset::calllog::deleteCall(ledger, id)
                                      : handset::calllog::deleteCalls(ledger, period, count));
    });
}

int exportTo(const Options &options)
{
    return withLedger(options, [&](handset::calllog::Ledger &ledger) {
        QByteArray text;
        if (exportState(ledger, text) != handset::Success)
            return complain(ExitFailed, Text::tr("The call log cannot be read."));
        const QString file = options.words.constFirst();
        if (file == QLatin1String("-"))
            return print(text);
        const QString error = writeFile(file, text);
        return error.isEmpty() ? int{ExitSuccess} : complain(ExitBadFile, error);
    });
}

int importFrom(const Options &options)
{
    const QString error = importState(options.words.constFirst(), options.stateDirectory);
    return error.isEmpty() ? int{ExitSuccess} : complain(ExitBadFile, error);
}

int run(const Options &options)
{
    QByteArray shown;
    if (options.watches)
        return watch([&] {
            const QByteArray before = shown;
            const int code = showFigures(options, shown);
            return Look{code, shown != before};
        });
    if (options.command == QLatin1String("figures"))
        return showFigures(options, shown);
    if (options.command == QLatin1String("settings"))
        return showSettings(options);
    if (options.command == QLatin1String("reset"))
        return resetFigure(options);
    if (options.command == QLatin1String("delete"))
        return deleteRows(options);
    if (options.command == QLatin1String("export"))
        return exportTo(options);
    if (options.command == QLatin1String("import"))
        return importFrom(options);
    return showRows(options);
}

} // namespace

int main(int argc, char **argv)
{
    process::guardStandardStreams();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavmeter"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAV_VERSION));
    language::Catalogue catalogue;
    const QString language = language::languageFor(QCoreApplication::arguments());
    if (const QString problem = catalogue.installLanguage(language); !problem.isEmpty())
        complain(ExitSuccess, problem); // figures are worth more than their language
    const CommandLine commandLine = parse(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty())
        return complain(ExitBadCommandLine, commandLine.error + u' ' + Text::tr("See kavmeter --help."));
    return commandLine.options ? run(*commandLine.options) : print(commandLine.output.toUtf8());
}
