#include "host/QtStart.h"

#include "host/ExitCode.h"

#include <QtCore/QFile>
#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace host {

namespace {

// Of those that Qt takes out of the command line, the ones that are of use to a user.
constexpr std::array optionsWithValue{"platform", "platformpluginpath", "platformtheme", "style", "stylesheet",
                                      "display",  "fontengine"};
constexpr const char *optionWithoutValue = "reverse";

// "-style", "--style" and "--style=fusion" are "style"; empty for what is no option.
QString optionName(const QString &argument)
{
    if (!argument.startsWith(u'-'))
        return {};
    const QString name = argument.mid(argument.startsWith(QLatin1StringView("--")) ? 2 : 1);
    return name.section(u'=', 0, 0);
}

// "-display :1" is Qt's, "--display" ours.
bool isOurs(const QString &argument)
{
    return argument.section(u'=', 0, 0) == QLatin1StringView("--display");
}

bool takesValue(const QString &name)
{
    return std::any_of(optionsWithValue.begin(), optionsWithValue.end(),
                       [&](const char *option) { return name == QLatin1StringView(option); });
}

// What the guard has heard of Qt. Messages come before there is an application object, from the GUI thread.
struct Heard {
    QByteArray sentence;
    QStringList warnings;
    QtMessageHandler before = nullptr;
};

Heard &heard()
{
    static Heard instance;
    return instance;
}

void hear(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        heard().warnings.append(qFormatLogMessage(type, context, message));
        return;
    }
    std::fprintf(stderr, "%s\n", heard().sentence.constData());
    std::fflush(stderr);
    std::_Exit(ExitNoDisplay); // nothing has been opened yet
}

} // namespace

DividedArguments divideArguments(const QStringList &arguments)
{
    DividedArguments divided;
    divided.own.append(arguments.value(0));
    divided.ofQt.append(arguments.value(0));
    bool areOptions = true;
    for (qsizetype index = 1; index < arguments.size(); ++index) {
        const QString &argument = arguments[index];
        areOptions = areOptions && argument != QLatin1StringView("--");
        const QString name = areOptions && !isOurs(argument) ? optionName(argument) : QString();
        const bool hasValue = takesValue(name);
        QStringList &part = hasValue || name == QLatin1StringView(optionWithoutValue) ? divided.ofQt : divided.own;
        part.append(argument);
        if (hasValue && !argument.contains(u'=') && index + 1 < arguments.size())
            part.append(arguments[++index]);
    }
    return divided;
}

ArgumentVector::ArgumentVector(const QStringList &arguments)
    : number(static_cast<int>(arguments.size()))
{
    for (const QString &argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
}

PlatformGuard::PlatformGuard(const char *program, const QString &platform)
{
    const QString problem =
        QStringLiteral("%1: The platform \"%2\" of Qt cannot be used: it is not installed, or has "
                       "nothing to show windows on.");
    heard().sentence = problem.arg(QLatin1StringView(program), platform).toLocal8Bit();
    heard().before = qInstallMessageHandler(&hear);
}

PlatformGuard::~PlatformGuard()
{
    qInstallMessageHandler(heard().before);
    for (const QString &warning : std::as_const(heard().warnings))
        std::fprintf(stderr, "%s\n", warning.toLocal8Bit().constData());
    heard() = {};
}

} // namespace host
