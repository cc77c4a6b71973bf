// Opening a screen beside the same texts on stock widgets.
#include "Groups.h"
#include "Opening.h"
#include "ScreenTable.h"
#include "StockScreen.h"

namespace bench {

namespace {

class PluginScreen final : public Opening
{
public:
    PluginScreen(const ScreenEntry &screenEntry, QWidget *where)
        : entry(screenEntry)
        , display(where)
    {}

    void open() override
    {
        screen = entry.create(display);
        screen->show();
    }
    void close() override { entry.destroy(screen); }
    const char *fault() override
    {
        return textsOn(screen) == entry.texts() ? nullptr : "it has other texts than the one of stock widgets";
    }

private:
    const ScreenEntry &entry;
    QWidget *display;
    QWidget *screen = nullptr;
};

class HandMadeScreen final : public Opening
{
public:
    HandMadeScreen(const ScreenEntry &screenEntry, QWidget *where)
        : entry(screenEntry)
        , display(where)
    {}

    void open() override
    {
        screen = std::make_unique<StockScreen>(entry.texts(), display);
        screen->show();
    }
    void close() override { screen.reset(); }

private:
    const ScreenEntry &entry;
    QWidget *display;
    std::unique_ptr<StockScreen> screen;
};

template <typename Screen>
Side side(const char *label, const ScreenEntry &entry)
{
    return openingSide(label, [&entry](QWidget *display) { return std::make_unique<Screen>(entry, display); });
}

} // namespace

std::vector<Comparison> screenComparisons()
{
    constexpr double noSlower = 1.0;
    std::vector<Comparison> comparisons;
    for (const ScreenEntry &entry : screenTable())
        comparisons.push_back({std::string("Opening ") + entry.name + ", to the first paint",
                               side<PluginScreen>("plug-in", entry), side<HandMadeScreen>("stock widgets", entry),
                               noSlower});
    return comparisons;
}

} // namespace bench
