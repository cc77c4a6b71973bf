#include "Options.h"

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
                                         QStringLiteral("Measure each side N times."), QStringLiteral("N"),
                                         QStringLiteral("15"));
    const QCommandLineOption cycles(QStringLiteral("cycles"),
                                    QStringLiteral("Open and destroy each screen N times; 0 leaves that out."),
                                    QStringLiteral("N"), QStringLiteral("10000"));
    const QCommandLineOption only(
        QStringLiteral("only"), QStringLiteral("Only the rows whose name contains TEXT."), QStringLiteral("TEXT"));
    const QCommandLineOption directory(QStringLiteral("data"),
                                       QStringLiteral("Keep the call logs that are measured in DIR."),
                                       QStringLiteral("DIR"), beside);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the call meter beside what a user would pick instead."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({repetitions, cycles, only, directory});
    parser.process(*QCoreApplication::instance());
    return {number(parser, repetitions, 1), number(parser, cycles, 0), parser.value(only),
            parser.value(directory)};
}

} // namespace bench
