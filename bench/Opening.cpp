#include "bench/Opening.h"

#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Stage.h"

#include <QtCore/QSet>

namespace bench {

namespace {

bool isBlank(const QImage &picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    return colors.size() < 3;
}

// What is timed must be the whole of it: nothing is left to be painted later.
const char *faultOf(Opening &opening, Stage &stage)
{
    const QImage before = stage.picture();
    opening.open();
    stage.paint();
    const QImage first = stage.picture();
    stage.update();
    stage.paint();
    const QImage last = stage.picture();
    const char *fault = opening.fault();
    opening.close();
    stage.paint();
    if (fault)
        return fault;
    if (isBlank(first) || first == before)
        return "the first paint shows nothing";
    return first == last ? nullptr : "the first paint is not the whole of it";
}

} // namespace

std::function<void(benchmark::State &)> openingSide(MakeOpening make, Figures figures)
{
    return [make, figures](benchmark::State &state) {
        useFixedHandset(); // which opens the traces, too
        if (figures.use)
            figures.use();
        Stage stage;
        const std::unique_ptr<Opening> opening = make(&stage);
        stage.paint();
        if (const char *fault = faultOf(*opening, stage))
            state.SkipWithError(fault);
        for (auto _ : state) {
            figures.change ? figures.change() : changeFigures();
            {
                const Counted counted;
                opening->open();
                stage.paint();
            }
            state.PauseTiming();
            opening->close();
            stage.paint();
            state.ResumeTiming();
        }
    };
}

} // namespace bench
