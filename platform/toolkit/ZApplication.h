// What the toolkit knows of the application around it: where the phone's display is, and who gets its keys.
#pragma once

class QWidget;

/// Static operations only; all of them belong to the GUI thread.
class ZApplication
{
public:
    ZApplication() = delete;

    /// Tells which widget the phone's display is. Dialogs without a parent lie over it and go where it goes. A host
    /// that shows the phone inside a larger window sets this once. Null goes back to the default; a widget that is
    /// destroyed does so too. Nothing is owned.
    static void setDisplay(QWidget *display);
    /// The display: what was set, else the visible screen last shown, or the outermost screen around it. Null when
    /// there is neither.
    static QWidget *display();

    /// The widget that a key of the phone goes to: in the visible dialog on top, else in the visible screen on top.
    /// Null when neither is visible. It need not have the desktop's focus.
    static QWidget *keyTarget();
    /// Presses and releases `qtKey` (a Qt::Key, see ZKeys.h) on keyTarget(), as an on-screen keypad does. The target
    /// may be deleted by the press; the release is then dropped. Answers false when there is no target.
    static bool pressKey(int qtKey);
};
