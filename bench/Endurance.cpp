#include "bench/Endurance.h"

#include "bench/FixedHandset.h"
#include "bench/ScreenTable.h"
#include "bench/Stage.h"

#include <cstdio>
#include <fstream>
#include <memory>

#include <malloc.h>

namespace bench {

namespace {

// From the page tables: the quicker counters of the kernel are some hundred KiB off. 0 where it cannot be read.
long long residentBytes()
{
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string line; std::getline(rollup, line);) {
        long long kib = 0;
        if (std::sscanf(line.c_str(), "Rss: %lld kB", &kib) == 1)
            return kib * 1024;
    }
    return 0;
}

Memory memory()
{
    const struct mallinfo2 heap = ::mallinfo2();
    return {static_cast<long long>(heap.uordblks + heap.hblkhd), residentBytes()};
}

// Bytes of the heap that one of them takes.
double sizeOf(QObject *(*make)())
{
    constexpr int count = 1000;
    std::vector<std::unique_ptr<QObject>> objects(count);
    const Memory before = memory();
    for (std::unique_ptr<QObject> &object : objects)
        object.reset(make());
    return static_cast<double>(memory().heap - before.heap) / count;
}

void openAndDestroy(const ScreenEntry &entry, Stage &stage, int times)
{
    for (int i = 0; i < times; ++i) {
        changeFigures();
        QWidget *screen = entry.create(&stage);
        screen->show();
        stage.paint();
        entry.destroy(screen);
        stage.paint();
    }
}

} // namespace

std::vector<Endured> endure(const std::string &filter, int cycles)
{
    useFixedHandset();
    memory(); // the first reading takes memory itself
    std::vector<Endured> all;
    for (const ScreenEntry &entry : screenTable()) {
        if (std::string(entry.name).find(filter) == std::string::npos)
            continue;
        std::fprintf(stderr, "Opening and destroying \"%s\" %d times\n", entry.name, cycles);
        Stage stage;
        Endured endured{entry.name, cycles / 10, cycles - cycles / 10, {}, {}};
        endured.leftBehind = entry.leftBehind ? sizeOf(entry.leftBehind) : 0;
        openAndDestroy(entry, stage, endured.warmUp);
        endured.before = memory();
        openAndDestroy(entry, stage, endured.cycles);
        endured.after = memory();
        all.push_back(endured);
    }
    return all;
}

} // namespace bench
