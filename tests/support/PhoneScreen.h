// A screen as a person has it: what is on it, and the keys.
#pragma once

#include "toolkit/ZKeys.h"
#include "toolkit/ZSoftKey.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;
class ZKbMainWidget;
class ZListBox;
class ZMessageDlg;
class ZPopup;

namespace PhoneScreen {

/// Presses a key of the phone, on whatever gets the phone's keys now.
void press(ZKeys::PhoneKey key);
/// Moves the focus bar of `screen` to row `row` with the up and down keys, and presses select.
void chooseRow(const ZKbMainWidget *screen, int row);

/// The list of the screen itself, not that of a sub-screen; null when there is none.
ZListBox *list(const ZKbMainWidget *screen);
/// The screen's rows from outside: "title|value" each, asked through the list's items.
QStringList rows(const ZKbMainWidget *screen);
/// The same through the model of the view, which is what a person sees painted.
QStringList shownRows(const ZKbMainWidget *screen);
/// The value of one row.
QString value(const ZKbMainWidget *screen, int row);
QString softkey(const ZKbMainWidget *screen, ZSoftKey::KEY_IDX key);

/// The message dialogs on show, in no order.
QList<ZMessageDlg *> shownDialogs();
/// The one message dialog on show; null when there is none, and when there are several.
ZMessageDlg *shownDialog();

} // namespace PhoneScreen
