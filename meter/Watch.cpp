#include "meter/Watch.h"

#include "meter/ExitCode.h"
#include "process/EndSignals.h"
#include "qt/QCopChannel.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

namespace meter {

namespace {

constexpr int changingMs = 1000;
constexpr int restingMs = 5000;

bool isEnd(int code)
{
    return code == ExitFailed || code == ExitNoHandset || code == ExitBadFile;
}

} // namespace

int watch(const std::function<Look()> &look)
{
    const process::EndSignals ends;
    QObject::connect(&ends, &process::EndSignals::asked, qApp, [] { QCoreApplication::exit(ExitSuccess); });
    const QCopChannel changes("/KAV/handset");
    const QCopChannel updates("/KAV/phone");
    QTimer clock;
    const auto lookAgain = [&] {
        const auto [code, isNew] = look();
        if (isEnd(code))
            QCoreApplication::exit(code);
        clock.start(isNew ? changingMs : restingMs);
    };
    QObject::connect(&clock, &QTimer::timeout, &clock, lookAgain);
    QObject::connect(&changes, &QCopChannel::received, &clock, lookAgain);
    QObject::connect(&updates, &QCopChannel::received, &clock, lookAgain);
    clock.start(0);
    return QCoreApplication::exec();
}

} // namespace meter
