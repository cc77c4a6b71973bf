// A choice of one row.
#pragma once

#include "toolkit/ZPopup.h"

class QKeyEvent;
class ZListBox;

/// A dialog with a list, as large as its rows need and at most as the display, which then scrolls by whole rows.
/// It hides itself and emits leftSoftkeyClicked() on its left softkey, signalCenterSelKeyPressed() on the select
/// key or a tapped row; the list's currentItem() is the chosen row then. Both are emitted for a disabled row
/// too, which the maker answers for, as in ZListBox. A list without rows answers to its softkeys only.
///
/// Rows of the layout "%I%M" that have no icon show whether they are the chosen one. Titles too long for the
/// display lose their middle: lists of names that end in a code stay readable at both ends.
///
/// A typed letter moves to the next row that begins with it, several typed quickly (within
/// QApplication::keyboardInputInterval()) to the next row that begins with all of them. On the phone's own keys
/// each number key stands for its letters, the next one with each quick press, in a list where no row begins
/// with the digit itself.
class ZSingleSelectDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `message` is a text over the list; null for none. `timeout` in milliseconds after which the dialog
    /// answers as by its right softkey, 0 or less never. The other arguments as in ZPopup.
    ZSingleSelectDlg(const QString &header, const QString &message, QWidget *parent, const char *name, bool modal,
                     unsigned int flags, int timeout);
    ~ZSingleSelectDlg() override;

    /// The list, never null, owned by the dialog.
    ZListBox *getListBox();

    void setVisible(bool visible) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool moveByNumberKey(const QKeyEvent *event);
    bool moveByLetter(const QKeyEvent *event);

    struct Private;
    std::unique_ptr<Private> d;
};
