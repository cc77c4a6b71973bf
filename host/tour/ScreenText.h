// What a person reads on the display, as text.
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

namespace host::tour {

/// One thing that can be read: a word, for some a number, and one or more cells of text.
struct Fact {
    QString word;
    int number = -1; ///< of a row or a label, counted from 0; -1 where the word has none
    QStringList cells;

    friend bool operator==(const Fact &, const Fact &) = default;

    /// As a script has it: `row 1 Dialed Calls | 00:01:05`. Cells that would not survive are in double quotes.
    QString line() const;
};

/// The screen or dialog that has the keys, read from outside.
struct ScreenText {
    const QWidget *layer = nullptr; ///< only to be compared
    QString name;                   ///< the title, or the header or else "notice"; for file names
    QList<Fact> facts;              ///< from the top of the display to its foot

    /// Null when there is no such fact.
    const Fact *find(const QString &word, int number) const;
    /// Whether both are the same screen or dialog, whatever its rows say.
    bool isSameAs(const ScreenText &other) const;
};

/// Reads what has the keys now; without a layer there is nothing on the display.
ScreenText readScreen();

} // namespace host::tour
