// What the toolkit knows of the application around it: where the phone's display is, and who gets its keys.
#pragma once

#include "qt/QValueList.h"

#include <QtCore/QString>

class QUuid;
class QWidget;

/// Static operations only; all of them belong to the GUI thread.
class ZApplication
{
public:
    ZApplication() = delete;

    /// Tells which widget the phone's display is. Dialogs without a parent lie over it and go where it goes. A
    /// host that shows the phone inside a larger window sets this once. Null goes back to the default; a widget
    /// that is destroyed does so too. Nothing is owned.
    static void setDisplay(QWidget *display);
    /// The display: what was set, else the visible screen last shown, or the outermost screen around it. Null when
    /// there is neither.
    static QWidget *display();

    /// The widget that a key of the phone goes to: in the visible dialog on top, else in the visible screen on
    /// top. Null when neither is visible. It need not have the desktop's focus.
    static QWidget *keyTarget();
    /// Presses and releases `qtKey` (a Qt::Key, see ZKeys.h) on keyTarget(), as an on-screen keypad does. The
    /// target may be deleted by the press; the release is then dropped. Returns false when there is no target.
    static bool pressKey(int qtKey);

    /// Says what is typed in `field`, a text field of any class, in place of what was said before. The methods and
    /// modes are the phone's own; `defaultMethod` with `mode` is what the field starts with:
    ///
    /// 637a8c00-1098-42ca-969a-2bf163cd3c14 (numbers), mode 6: a decimal number. The phone's star key and a comma
    /// give the point.
    /// 637a8c00-1098-42ca-969a-2bf163cd3c12 (letters), mode 0: letters from the number keys, pressed once or more
    /// for one letter; a number key that is held gives its digit; upper case, which the star key changes.
    /// 637a8c00-1098-42ca-969a-2bf163cd3c15 (symbols), any mode: plain typing.
    ///
    /// In the first two the hash key takes away the character before the cursor. Whatever else a keyboard types is
    /// typed as it is, letters among numbers too, so that there is no need to change to an allowed method:
    /// `allowedMethods` are only looked at for ones that are not known. Those, a method and mode that are not in
    /// this list (the field is typed in plainly then), and a null field are warnings. `hint` is shown in the field
    /// while it is empty; null leaves what it has.
    static void setInputMethods(QWidget *field, QUuid const &defaultMethod,
                                QValueList<QUuid> const &allowedMethods, int mode, QString hint);
};
