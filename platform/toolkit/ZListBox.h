// The list of a screen or a choice dialog.
#pragma once

#include "qt/classname.h"
#include "toolkit/ZSkinService.h"

#include <QtWidgets/QListView>

#include <memory>

class ZListItem;
class ZSettingItem;

/// Rows one above the other, moved in by the up and down keys, chosen by the select key or the pointer. A model and
/// a view: no widget a row, all rows of one height. Separators cannot be chosen, neither by key nor by the pointer.
/// A row that is added while none has the focus bar gets it if it can be chosen.
///
/// Keys: up and down pass over separators and go on at the other end of the list, a key that is held stops at the
/// end; page up and page down move by what the list shows, home and end to the first and last row; select chooses
/// the row under the bar, once a press; a typed letter moves to the next row whose title begins with what was typed.
/// Other keys go to the screen.
///
/// A row's title is elided, its value is not, unless it is wider than the whole row.
///
/// model() has the rows for reading: Qt::DisplayRole is the title, Qt::AccessibleTextRole what a screen reader says
/// ("title, value"), and the roles below. A change of one row is one dataChanged() of that row, even where the text
/// is the same again.
class ZListBox : public QListView
{
    Q_OBJECT
    KAV_CLASS_NAME
    Q_MOC_INCLUDE("toolkit/ZSettingItem.h") // so that the signals' arguments can be recorded and queued

public:
    enum ItemDataRole {
        ValueRole = 0x0101, ///< QString, the second column; Qt::UserRole + 1
        EnabledRole,        ///< bool
        SeparatorRole,      ///< bool
        MarkedRole          ///< bool
    };

    /// `type` is the layout of the rows that name none of their own (see ZListItem), `flags` window flags (0),
    /// `skinClass` the phone's number for the kind of list, which is kept: every list is drawn alike. `parent` owns
    /// the list.
    ZListBox(QString type, QWidget *parent, unsigned int flags, ZSkinService::WidgetClsID skinClass);
    ~ZListBox() override;

    /// The layout of the rows that name none of their own, those already made too. Nothing is repainted.
    void setItemType(QString type);
    QString itemType() const;
    ZSkinService::WidgetClsID skinClass() const;

    /// Puts `item` before row `index`; -1, or an index past the end, appends. `show` asks for the repaint of the
    /// list; without it the row shows up with the list's next repaint for another reason, which the new row itself
    /// may well be. A null item, an item that was not made on this list or one already inserted is refused with a
    /// warning. The list owns the item.
    void insertItem(const ZListItem *item, int index, bool show);
    /// Row `index`, or null.
    ZListItem *item(int index) const;
    /// The row of `item`, or -1 when it is null or not in the list. `item` may be gone already.
    int index(const ZListItem *item) const;
    int count() const;
    /// Deletes every row, and leaves alone the items that are made but not inserted. A list that is filled again
    /// before the user does anything with it has the bar on the row where it was, if there still is one. A pointer
    /// pressed on a row stays on it if the row at that place has the same title again.
    void clear();

    /// The row under the focus bar, -1 for none.
    int currentItem() const;
    /// Moves the focus bar to row `index` (`on`), or takes it away from that row. Bad indexes, and separators,
    /// change nothing.
    void setSelected(int index, bool on);
    bool isSelected(int index) const;

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

    /// The skin's, for all lists alike, unless setItemDelegate() gave the list one of its own.
    QAbstractItemDelegate *itemDelegateForIndex(const QModelIndex &index) const override;

signals:
    /// A row was chosen, with the select key or the pointer. The row may be disabled (see ZListItem::setEnabled), it
    /// is never a separator. Whoever answers may clear the list or delete it.
    void selected(ZSettingItem *item);
    /// The same for rows of every kind, just before selected().
    void itemChosen(ZListItem *item);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void updateGeometries() override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    friend class ZListItem;
    void adopt(ZListItem *item);
    void forget(ZListItem *item);
    void itemChanged(ZListItem *item);
    void layOutBeforePainting();

    bool moveBar(QKeyEvent *event);
    void step(int direction, bool wrap);
    void moveBarTo(int row, int direction);
    void leaveSeparator(int row);
    void choose(int row);

    struct Private;
    std::unique_ptr<Private> d;
};
