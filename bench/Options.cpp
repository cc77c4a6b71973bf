#include "bench/Options.h"

#include "bench/CallLogs.h"

#include <QtCore/QCommandLineParser>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

int number(const QCommandLineParser &parser, const QCommandLineOption &option, int least)
{
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (isNumber && value >= least)
        return value;
    std::fprintf(stderr, "--%s wants a number from %d on.\n", qUtf8Printable(option.names().constFirst()), least);
    std::exit(2);
}

} // namespace

Options readOptions()
{
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/bench-data");
    const QCommandLineOption repetitions(QStringLiteral("repetitions"),
                                         QStringLiteral("Time each side N times; 0 counts instructions only."),
                                         QStringLiteral("N"), QStringLiteral("15"));
    const QCommandLineOption cycles(QStringLiteral("cycles"),
                                    QStringLiteral("Open and destroy each screen N times; 0 leaves that out."),
                                    QStringLiteral("N"), QStringLiteral("10000"));
    const QCommandLineOption only(
        QStringLiteral("only"), QStringLiteral("Only the rows whose name contains TEXT."), QStringLiteral("TEXT"));
    const QCommandLineOption directory(QStringLiteral("data"),
                                       QStringLiteral("Keep the call logs that are measured in DIR."),
                                       QStringLiteral("DIR"), beside);
    const QCommandLineOption profiles(QStringLiteral("profiles"),
                                      QStringLiteral("Keep callgrind's files in DIR, for callgrind_annotate."),
                                      QStringLiteral("DIR"));
    const QCommandLineOption large(
        QStringLiteral("large"),
        QStringLiteral("Reopen a log of 10,000,000 calls, too; it is built, which takes a minute "
                       "and 2 GB in DIR of --data, and removed again."));
    const QCommandLineOption markdown(QStringLiteral("markdown"),
                                      QStringLiteral("Write the tables to FILE, too, as a page of the manual."),
                                      QStringLiteral("FILE"));
    QCommandLineOption crashIn(QStringLiteral("crash-in"), QString(), QStringLiteral("DIR"));
    QCommandLineOption countedRow(QStringLiteral("count-row"), QString(), QStringLiteral("NAME"));
    QCommandLineOption countedSide(QStringLiteral("count-side"), QString(), QStringLiteral("N"),
                                   QStringLiteral("0"));
    countedRow.setFlags(QCommandLineOption::HiddenFromHelp);
    crashIn.setFlags(QCommandLineOption::HiddenFromHelp);
    countedSide.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the call meter beside what a competent developer would write instead."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {repetitions, cycles, only, directory, profiles, large, markdown, crashIn, countedRow, countedSide});
    parser.process(*QCoreApplication::instance());
    Options options;
    options.repetitions = number(parser, repetitions, 0);
    options.cycles = number(parser, cycles, 0);
    options.only = parser.value(only);
    options.directory = parser.value(directory);
    options.profiles = parser.value(profiles);
    options.markdown = parser.value(markdown);
    options.largestLog = parser.isSet(large) ? largeLog : usualLog;
    options.countedRow = parser.value(countedRow);
    options.countedSide = number(parser, countedSide, 0);
    options.crashIn = parser.value(crashIn);
    return options;
}

} // namespace bench
