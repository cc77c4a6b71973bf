// How Qt's application object is started: with Qt's own options, and with a sentence where it has nothing to show windows on.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

#include <vector>

namespace host {

/// The command line in two: what is Qt's, and the rest, which is the program's own. The program's name is in both.
struct DividedArguments {
    QStringList own;
    QStringList ofQt;
};

/// Qt's are -platform, -style and the like, with one dash or two, their value behind them or behind "=". "-plugin" is not:
/// that is an option of the program's own. "--" ends what is looked at.
DividedArguments divideArguments(const QStringList &arguments);

/// Arguments as main() has them, for as long as this lives and Qt refers to them.
class ArgumentVector
{
public:
    explicit ArgumentVector(const QStringList &arguments);
    Q_DISABLE_COPY_MOVE(ArgumentVector)

    int &count() { return number; }
    char **values() { return pointers.data(); }

private:
    std::vector<QByteArray> texts;
    std::vector<char *> pointers;
    int number;
};

/// While this lives, a platform of Qt that cannot be used ends the process with ExitNoDisplay and one sentence on standard
/// error that begins with `program`; Qt only aborts. What Qt has warned of until then is printed when this goes.
class PlatformGuard
{
public:
    PlatformGuard(const char *program, const QString &platform);
    ~PlatformGuard();
    Q_DISABLE_COPY_MOVE(PlatformGuard)
};

} // namespace host
