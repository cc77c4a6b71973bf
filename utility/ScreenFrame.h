// What the screens have in common: the frame, the rows of a settings list, the dialogs.
#pragma once

#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"
#include "utility/ResourceText.h"

#include <QtCore/QString>

class ZKbMainWidget;
class ZSoftKey;

namespace ScreenFrame {

/// What tells the frames of the screens apart.
struct Recipe {
    const char *context; ///< class name of the screen
    ResourceText title;
    const char *backMember; ///< signal or slot of the screen for the right softkey and the clear key alike
};

/// The steps of buildTitleAndSoftKey(), for a screen that takes them in another order.
ZSoftKey *newSoftKey(ZKbMainWidget *screen);
void nameBackKey(ZSoftKey *softKey, const Recipe &recipe);
void emptyLeftKey(ZSoftKey *softKey, const Recipe &recipe);

/// Gives `screen` its title and its softkey bar: "Back" on the right, nothing on the left. Null when there is no
/// memory for the bar.
ZSoftKey *buildTitleAndSoftKey(ZKbMainWidget *screen, const Recipe &recipe);

/// Fills the content area of `screen` with a settings list. Null when there is no memory for it.
ZListBox *newList(ZKbMainWidget *screen);

/// Connects `list`, which may be null, to slotSelectedItem(ZSettingItem*), and the clear key to the way back.
void connectList(ZKbMainWidget *screen, ZListBox *list, const Recipe &recipe);

/// newList() and connectList().
ZListBox *buildList(ZKbMainWidget *screen, const Recipe &recipe);

/// Makes a row, not yet inserted and without a text. Null without a list or memory.
ZSettingItem *newEmptyRow(ZListBox *list);
/// The same with what `title()` answers in the first column; nothing is asked without a row.
template <typename Title>
ZSettingItem *newRow(ZListBox *list, Title title)
{
    ZSettingItem *row = newEmptyRow(list);
    if (row)
        row->appendSubItem(0, title(), false, ZSettingItem::TitleRegion);
    return row;
}
/// Makes a separator row, not yet inserted. Null without a list or memory.
ZSettingItem *newSeparator(ZListBox *list, const QString &label);
void appendValue(ZSettingItem *row, const QString &value);
void appendRow(ZListBox *list, ZSettingItem *row);
/// Appends the rows that `makeRow` answers for 0 to `count` - 1. Ends at one that could not be made: a later row must
/// not slip into its place.
template <typename MakeRow>
void appendRows(ZListBox *list, int count, MakeRow makeRow)
{
    for (int number = 0; number < count; ++number) {
        ZSettingItem *row = makeRow(number);
        if (!row)
            return;
        appendRow(list, row);
    }
}

/// Rewrites the value of row `row` with what `value()` answers; nothing is asked where there is no such row.
template <typename Value>
void rewriteValue(ZListBox *list, int row, Value value)
{
    if (auto *item = static_cast<ZSettingItem *>(list->item(row)))
        item->setSubItem(0, 1, value(), false, ZSettingItem::ValueRegion);
}

/// Makes a dialog that answers to `leftSlot` and `rightSlot` of `screen`; a null slot is not connected. The dialog
/// is modal and a child of the screen. Null when there is no memory for it.
ZMessageDlg *newDialog(ZKbMainWidget *screen, const QString &header, const QString &message,
                       ZMessageDlg::MessageDlgType type, const char *leftSlot, const char *rightSlot);

/// What a data session is called: its access point name, or `fallback` where it has none.
QString sessionName(const QString &apn, const ResourceText &fallback);

/// Shows a sub-screen, whose end `screen` hears of in slotCloseWgt().
void showSubScreen(ZKbMainWidget *screen, ZKbMainWidget *subScreen);

template <typename Object>
void deleteAndNull(Object *&object)
{
    delete object;
    object = nullptr;
}

} // namespace ScreenFrame
