// The screens that are measured: one row each.
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <span>

class QObject;
class QWidget;

namespace bench {

struct TextRow {
    QString title;
    QString value; ///< empty where the row has none

    friend bool operator==(const TextRow &, const TextRow &) = default;
};

/// Everything there is to read on a screen.
struct ScreenTexts {
    QString title;
    QString leftKey;
    QString rightKey;
    QList<TextRow> rows;

    friend bool operator==(const ScreenTexts &, const ScreenTexts &) = default;
};

struct ScreenEntry {
    const char *name;
    QWidget *(*create)(QWidget *display); ///< through the plug-in's exported function, where there is one
    void (*destroy)(QWidget *screen);     ///< likewise
    /// The same texts for the hand-made screen, with the figures asked from the same handset in the same way.
    ScreenTexts (*texts)();
    /// Makes what the screen is meant to leave behind when it is destroyed; null where that is nothing.
    QObject *(*leftBehind)() = nullptr;
};

std::span<const ScreenEntry> screenTable();

/// What the plug-in's `screen` says.
ScreenTexts textsOn(const QWidget *screen);

} // namespace bench
