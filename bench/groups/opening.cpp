// Opening a screen, up to its first paint, beside the same texts on stock widgets.
#include "FixedTelephone.h"
#include "Groups.h"
#include "ScreenTable.h"
#include "Stage.h"
#include "StockScreen.h"

#include <QtCore/QSet>

namespace bench {

namespace {

using Open = QWidget *(*)(const ScreenEntry &entry, QWidget *display);
using Close = void (*)(const ScreenEntry &entry, QWidget *screen);

QWidget *openOurs(const ScreenEntry &entry, QWidget *display)
{
    return entry.create(display);
}

void closeOurs(const ScreenEntry &entry, QWidget *screen)
{
    entry.destroy(screen);
}

QWidget *openStock(const ScreenEntry &entry, QWidget *display)
{
    return new StockScreen(entry.texts(), display);
}

void closeStock(const ScreenEntry &, QWidget *screen)
{
    delete screen;
}

bool isBlank(const QImage &picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    return colors.size() < 3;
}

// What is timed must be the whole of it: nothing is left to be painted later.
const char *faultOf(const ScreenEntry &entry, Open open, Close close)
{
    Stage stage;
    QWidget *screen = open(entry, &stage);
    const bool sameTexts = open == &openStock || textsOn(screen) == entry.texts();
    screen->show();
    stage.paint();
    const QImage first = stage.picture();
    screen->update();
    stage.paint();
    const QImage last = stage.picture();
    close(entry, screen);
    if (!sameTexts)
        return "the screen has other texts than the one made from stock widgets";
    if (isBlank(first))
        return "the first paint shows nothing";
    return first == last ? nullptr : "the first paint is not the whole screen";
}

Side side(const char *label, const ScreenEntry &entry, Open open, Close close)
{
    return {label, [entry, open, close](benchmark::State &state) {
                useFixedTelephone();
                if (const char *fault = faultOf(entry, open, close))
                    state.SkipWithError(fault);
                Stage stage;
                for (auto _ : state) {
                    QWidget *screen = open(entry, &stage);
                    screen->show();
                    stage.paint();
                    state.PauseTiming();
                    close(entry, screen);
                    stage.paint();
                    state.ResumeTiming();
                }
            }};
}

} // namespace

std::vector<Comparison> openingComparisons()
{
    constexpr double noSlower = 1.0;
    std::vector<Comparison> comparisons;
    for (const ScreenEntry &entry : screenTable())
        comparisons.push_back({std::string("Opening ") + entry.name + ", to the first paint",
                               side("plug-in", entry, &openOurs, &closeOurs),
                               side("stock widgets", entry, &openStock, &closeStock), noSlower});
    return comparisons;
}

} // namespace bench
