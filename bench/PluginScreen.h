// A screen of the plug-in, to be opened over and over.
#pragma once

#include "bench/Opening.h"
#include "bench/ScreenTable.h"

#include <QtWidgets/QWidget>

namespace bench {

class PluginScreen final : public Opening
{
public:
    /// `isCompared`: with the texts of the table, which are those of a telephone that has every figure.
    PluginScreen(const ScreenEntry &screenEntry, QWidget *where, bool isCompared = true)
        : entry(screenEntry)
        , display(where)
        , hasTexts(isCompared)
    {}

    void open() override
    {
        screen = entry.create(display);
        screen->show();
    }
    void close() override { entry.destroy(screen); }
    const char *fault() override
    {
        return !hasTexts || textsOn(screen) == entry.texts() ? nullptr
                                                             : "it has other texts than what is beside it";
    }

private:
    const ScreenEntry &entry;
    QWidget *display;
    bool hasTexts;
    QWidget *screen = nullptr;
};

} // namespace bench
