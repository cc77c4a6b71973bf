// Opening a call log, after a crash and after a proper end, until the first screen is there: a large log beside a small
// one.
#include "bench/CallLogs.h"
#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "bench/Stage.h"
#include "handset/Handset.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include <QtCore/QLocale>

namespace bench {

namespace {

using After = CallLogs::After;

constexpr int few = 100;
constexpr Bar hardlySlower{1.5, 1.1};
constexpr Bar unnoticed{100, 50}; // milliseconds

// The screen of call times. What is on it is looked at when it is painted.
struct FirstScreen {
    BenchedHandset benched;
    std::unique_ptr<PHONE_UI_RecentCallTimesView> view;

    bool open(const std::shared_ptr<const QTemporaryDir> &log, Stage &stage)
    {
        benched = CallLogs::openIn(log);
        handset::install(benched.handset);
        view = std::make_unique<PHONE_UI_RecentCallTimesView>(&stage, nullptr);
        view->show();
        return stage.paint();
    }

    void close()
    {
        view.reset();
        handset::install(nullptr);
        benched = {};
    }

    /// What stands beside "Lifetime Calls".
    QString lifetime() const
    {
        const auto *list = view->findChild<ZListBox *>();
        return list->item(list->count() - 1)->value();
    }
};

Side side(const std::string &label, const CallLogs &logs, int calls, After after)
{
    return {label, [=](benchmark::State &state) {
                useFixedHandset(); // which opens the traces
                Stage stage;
                for (auto _ : state) {
                    state.PauseTiming();
                    auto where = logs.copy(calls, after);
                    if (!where)
                        return state.SkipWithError("the call log cannot be copied");
                    FirstScreen screen;
                    bool isThere = false;
                    state.ResumeTiming();
                    {
                        const Counted counted;
                        isThere = screen.open(where, stage);
                    }
                    state.PauseTiming();
                    isThere = isThere && screen.benched.handset && screen.lifetime() != QStringLiteral("00:00:00");
                    screen.close();
                    where.reset(); // removing it takes longer than what is measured
                    stage.paint();
                    if (!isThere)
                        return state.SkipWithError("the screen is not there");
                    state.ResumeTiming();
                }
            }};
}

Comparison reopening(const CallLogs &logs, int calls, After after)
{
    const bool hasCrashed = after == After::Crash;
    const std::string label = QLocale(QLocale::English).toString(calls).toStdString() + " calls";
    Comparison row;
    row.name = "Reopening a log of " + label + (hasCrashed ? " after a crash" : "") + ", to the first screen";
    row.ours = side(label, logs, calls, after);
    row.beside = {{side("100 calls", logs, few, after)}};
    if (calls > readAtOnceLog)
        row.beside.front().bar = hardlySlower;
    row.milliseconds = unnoticed;
    row.clock = Clock::Wall;
    row.iterations = 1;
    row.counted = 1;            // each opens a copy of its own
    row.countsOneThread = true; // what goes on beside it does not delay the screen
    row.prepare = [=] {
        const auto prepare = [&](int size) { return hasCrashed ? logs.prepareCrashed(size) : logs.prepare(size); };
        const QString error = prepare(few);
        return error.isEmpty() ? prepare(calls) : error;
    };
    return row;
}

} // namespace

std::vector<Comparison> reopeningComparisons(const QString &directory, int largest)
{
    const CallLogs logs(directory);
    std::vector<Comparison> comparisons;
    for (const int calls : {readAtOnceLog, usualLog, largeLog}) {
        for (const After after : {After::Closing, After::Crash}) {
            if (calls <= largest)
                comparisons.push_back(reopening(logs, calls, after));
        }
    }
    return comparisons;
}

} // namespace bench
