// A row of a plain list: a text, and an icon where the layout has one.
#pragma once

#include "toolkit/ZListItem.h"

#include <QtGui/QPixmap>

#include <map>
#include <optional>

/// Sub-items are numbered by their place in the row's layout: in "%M" the text is sub-item 0, in "%I%M" the icon is
/// sub-item 0 and the text sub-item 1. The row's title is the first text that is not empty.
class ZListBoxItem : public ZListItem
{
public:
    /// How long a text keeps its room when a row is too narrow. The numbers are the phone's own; a row here has one
    /// text, which always keeps it.
    enum ShowPriority : int { LowShowPriority = 0, MiddleShowPriority = 1, HighShowPriority = 2 };

    /// A row on `list` (see ZListItem) with no sub-items yet. `type` as in ZListItem.
    ZListBoxItem(ZListBox *list, QString type);
    ~ZListBoxItem() override;

    /// Gives sub-item `subItem` its `text` and its icon `pixmap` (null for none, copied), in place of what it had.
    /// A negative number is refused with a warning. `shortText`, `width` (per cent of the row) and `priority` are
    /// for rows of several texts and are ignored.
    void appendSubItem(int subItem, QString text, QString shortText, const QPixmap *pixmap, unsigned int width,
                       ShowPriority priority);
    /// The text of sub-item `subItem` of line `line` (0: a row has one line), null where there is none. `shortText`
    /// asks for the short text, and rows show the long one: it is ignored.
    QString getSubItemText(int line, int subItem, bool shortText) const;

    QString title() const override;
    QPixmap icon() const override;

private:
    struct SubItem {
        QString text;
        std::optional<QPixmap> pixmap; // none for most
    };
    std::map<int, SubItem> subItems;
};
