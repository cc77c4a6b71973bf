// The list of a screen or a choice dialog.
#pragma once

#include "ZSkinService.h"
#include "classname.h"

#include <QtWidgets/QListView>

#include <memory>

class ZListItem;
class ZSettingItem;

/// Rows one above the other, moved in by the up and down keys, chosen by the select key or the pointer. A model and
/// a view: no widget a row, all rows of one height. Separators cannot be chosen by key. A row that is added while
/// none has the focus bar gets it if it can be chosen.
class ZListBox : public QListView
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `type` is the layout of the rows that name none of their own (see ZListItem), `flags` window flags (0),
    /// `skinClass` what the skin draws the list as. `parent` owns the list.
    ZListBox(QString type, QWidget *parent, unsigned int flags, ZSkinService::WidgetClsID skinClass);
    ~ZListBox() override;

    void setItemType(QString type);
    QString itemType() const;

    /// Puts `item` before row `index`; -1, or an index past the end, appends. `show` keeps the view where it is
    /// but updates it at once; false leaves the repainting to the next insertion that has it. A null item, an item of another list
    /// or one already inserted is refused with a warning. The list owns the item.
    void insertItem(const ZListItem *item, int index, bool show);
    /// Row `index`, or null.
    ZListItem *item(int index) const;
    /// The row of `item`, or -1 when it is null or not in the list.
    int index(const ZListItem *item) const;
    int count() const;
    /// Deletes every row.
    void clear();

    /// The row under the focus bar, -1 for none.
    int currentItem() const;
    /// Moves the focus bar to row `index` (`on`), or takes it away from that row. Bad indexes change nothing.
    void setSelected(int index, bool on);
    bool isSelected(int index) const;

signals:
    /// A row was chosen, with the select key or the pointer. Never emitted for a separator chosen by key.
    void selected(ZSettingItem *item);
    /// The same for rows of every kind.
    void itemChosen(ZListItem *item);

private:
    friend class ZListItem;
    struct Private;
    std::unique_ptr<Private> d;
};
