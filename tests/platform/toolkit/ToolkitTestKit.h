// What the tests of the toolkit share: a screen as the phone builds it, and eyes for what it looks like.
#pragma once

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSoftKey.h"

#include <QtCore/QPoint>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

/// A screen with a softkey bar ("Options", "Back") and a list that fills its content area.
class ListScreen : public ZKbMainWidget
{
    Q_OBJECT

public:
    explicit ListScreen(QWidget *parent = nullptr);

    ZSettingItem *addRow(const QString &title, const QString &value = QString());
    ZSettingItem *addSeparator(const QString &title);
    void addRows(int count);
    /// With so many rows, until its window is active; false when that takes too long.
    bool open(int rows = 0);
    QString titles() const; ///< of all rows, joined by "|"

    ZSoftKey *const bar;
    ZListBox *const list;

signals:
    void closeWidget();
};

namespace ToolkitTestKit {

/// A key press (and no release) as the window system sends one; `repeated` for a key that is held.
void press(QWidget *widget, int key, bool repeated = false);
/// A press and a release, sent to `widget`. (Qt's own helper knows no softkeys.)
void click(QWidget *widget, int key);
/// The same as it comes from the window system, to whatever has the focus in the window of `widget`.
void clickInWindow(const QWidget *widget, int key);
/// What typing `letter` does to `widget`.
void type(QWidget *widget, QChar letter);

/// Lets whatever is due happen: deferred deletions, focus changes, paint events.
void settle();

/// What the row of `list` looks like.
QImage lookOfRow(ZListBox *list, int row);
/// The middle of the row, in the coordinates of the list's viewport.
QPoint middleOfRow(const ZListBox *list, int row);

/// The leftmost and the rightmost column of `image` in which anything but `background` is seen; -1 for none.
int firstInk(const QImage &image, const QColor &background);
int lastInk(const QImage &image, const QColor &background);

/// Fails the running test on any warning from here on.
void noWarnings();

} // namespace ToolkitTestKit
