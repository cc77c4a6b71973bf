// A host as small as can be, for tests that need a process of its own: loads the plug-in, opens Call Times over a
// scripted handset, prints what is on the screen.
//
//   phone_probe rows|untraced [LIBRARY]
//
// "rows" throws the traces away, "untraced" leaves the trace stream without a place. LIBRARY is the file name to load,
// as dlopen() takes it. A library or function that is missing is told on standard error, with exit status 2.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/Surroundings.h"

#include <cstdio>

using handset::CallTime;

namespace {

void scriptFigures(Script &script)
{
    script.answer("CallLog::lastCallTime", CallTime{1, 2, 3});
    script.answer("CallLog::dialedCallsTime", CallTime{2, 3, 4});
    script.answer("CallLog::answeredCallsTime", CallTime{3, 4, 5});
    script.answer("DataCalls::totalDuration", quint32{3725});
    script.answer("CallService::totalCallTime", CallTime{4, 5, 6});
    script.answer("CallLog::lifetimeCallsTime", CallTime{123, 4, 5});
}

int printScreen(QLibrary &plugin)
{
    const auto create = reinterpret_cast<PHONE_UI_RecentCallTimesView *(*)(QWidget *, const char *)>(
        plugin.resolve("create_callTime"));
    const auto destroy =
        reinterpret_cast<void (*)(PHONE_UI_RecentCallTimesView *)>(plugin.resolve("destroy_callTime"));
    if (!create || !destroy) {
        const QString reason = plugin.isLoaded()
                                   ? plugin.fileName() + " has no create_callTime or destroy_callTime"
                                   : plugin.errorString();
        std::fprintf(stderr, "%s\n", qPrintable(reason));
        return 2;
    }
    PHONE_UI_RecentCallTimesView *screen = create(nullptr, "callTime");
    screen->show();
    std::printf("title: %s\n", qPrintable(screen->mainWidgetTitle()));
    const QStringList rows = PhoneScreen::rows(screen);
    for (const QString &row : rows)
        std::printf("%s\n", qPrintable(row));
    std::printf("softkeys: %s|%s\n", qPrintable(PhoneScreen::softkey(screen, ZSoftKey::LeftKey)),
                qPrintable(PhoneScreen::softkey(screen, ZSoftKey::RightKey)));
    destroy(screen);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    Surroundings::prepare();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString mode = arguments.value(1);
    QLibrary plugin(arguments.value(2, libraryDirectory() + "/libkavcallmeter.so.1"));
    const InstalledHandset handset;
    scriptFigures(handset.script());
    const auto sink = mode == QLatin1String("rows") ? std::make_unique<TraceSink>() : nullptr;
    return printScreen(plugin);
}
