// Opening a screen beside the same texts in a list view with a delegate, and painted on an image.
#include "bench/BarePainting.h"
#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "bench/ListScreen.h"
#include "bench/Opening.h"
#include "bench/PluginScreen.h"
#include "bench/ScreenTable.h"

namespace bench {

namespace {

constexpr Bar barBesideList{0.85, 0.7};
constexpr Bar barBesideLimit{2.1, 1.7};

class HandMadeScreen final : public Opening
{
public:
    HandMadeScreen(const ScreenEntry &screenEntry, QWidget *where)
        : entry(screenEntry)
        , display(where)
    {}

    void open() override
    {
        screen = std::make_unique<ListScreen>(entry.texts(), display);
        screen->show();
    }
    void close() override { screen.reset(); }
    const char *fault() override
    {
        return screen->texts() == entry.texts() ? nullptr : "the list view has other texts";
    }

private:
    const ScreenEntry &entry;
    QWidget *display;
    std::unique_ptr<ListScreen> screen;
};

template <typename Screen>
Side side(const char *label, const ScreenEntry &entry)
{
    return {label, openingSide([&entry](QWidget *display) { return std::make_unique<Screen>(entry, display); })};
}

Side bareLimit(const ScreenEntry &entry)
{
    return {"bare limit: texts on an image", [&entry](benchmark::State &state) {
                useFixedHandset();
                BarePainting painting;
                for (auto _ : state) {
                    changeFigures();
                    const Counted counted;
                    painting.paint(entry.texts());
                }
            }};
}

} // namespace

std::vector<Comparison> screenComparisons()
{
    std::vector<Comparison> comparisons;
    for (const ScreenEntry &entry : screenTable()) {
        Comparison row;
        row.name = std::string("Opening ") + entry.name + ", to the first whole paint";
        row.ours = side<PluginScreen>("plug-in", entry);
        row.beside = {{side<HandMadeScreen>("list view and delegate", entry), barBesideList},
                      {bareLimit(entry), barBesideLimit}};
        comparisons.push_back(row);
    }
    return comparisons;
}

} // namespace bench
