// A row of a settings list: a title, and a value in a second column.
#pragma once

#include "toolkit/ZListItem.h"

#include <QtCore/QList>

/// The texts of column 0 make the title and those of column 1 the value, joined by a blank where there are several.
class ZSettingItem : public ZListItem
{
public:
    enum SettingItemRegion : int { TitleRegion = 0, ValueRegion = 1 };

    /// A row on `list` (see ZListItem) with no sub-items yet. `type` as in ZListItem.
    ZSettingItem(ZListBox *list, QString type);
    ~ZSettingItem() override;

    /// Appends a sub-item. `line` is 0: a row has one line, and any other is refused with a warning. `marked` asks
    /// for emphasis. `region` says in which column the text stands; any other is refused with a warning.
    void appendSubItem(int line, QString text, bool marked, SettingItemRegion region);
    /// Rewrites sub-item `subItem` (0 is the first appended) of line `line` with `text`, in column `region`.
    /// A sub-item that was never appended is appended when it is the next one, else refused with a warning.
    void setSubItem(int line, int subItem, QString text, bool marked, SettingItemRegion region);

    int subItemCount() const;
    /// The text of sub-item `subItem`, null where there is none.
    QString subItemText(int subItem) const;

    QString title() const override;
    QString value() const override;
    bool isMarked() const override;

private:
    struct SubItem {
        QString text;
        SettingItemRegion region = TitleRegion;
        bool marked = false;
    };
    QString joined(SettingItemRegion region) const;

    QList<SubItem> subItems;
};
