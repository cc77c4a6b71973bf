// What the tests of the dialogs share.
#pragma once

#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZListBoxItem.h"
#include "toolkit/ZPopup.h"

#include <QtCore/QRect>
#include <QtCore/QStringList>

#include <functional>

namespace DialogTestKit {

/// Appends a row to `list` as the screens make the rows of their choices: the text is sub-item `subItem`.
ZListBoxItem *addChoice(ZListBox *list, const QString &text, int subItem = 0);
void addChoices(ZListBox *list, const QStringList &texts, int subItem = 0);
/// 194 rows, more than any display holds.
void addManyChoices(ZListBox *list);

/// The text of the row under the bar.
QString chosen(const ZListBox *list);

/// Presses a key of the phone as its keypad does.
void pressKey(int key);
/// The same for every key of `keys` in turn: digits, '*' and '#'.
void pressKeys(const char *keys);

/// Data rows for every key that stands for the phone's clear key.
void addClearKeyRows();

/// The box of a dialog, in its own coordinates: what is not the ground around it.
QRect boxOf(ZPopup *dialog);

/// What a dialog answered, in order, and whether it was out of sight by then.
class Answers : public QObject
{
    Q_OBJECT

public:
    explicit Answers(ZPopup *dialog);

    QStringList given;
    bool wasHidden = true; ///< at each of them
    /// Runs at each answer, after it is noted down.
    std::function<void()> then;

private:
    void note(const QString &answer);

    ZPopup *source;
};

} // namespace DialogTestKit
