// A row of a ZListBox.
#pragma once

#include <QtCore/QString>

#include <memory>

class QPixmap;
class ZListBox;

/// One row, made on a list and shown once it is inserted there. The list owns every item made on it, inserted or
/// not; deleting an item takes it out of its list. An item made on a null list belongs to its maker and cannot be
/// inserted anywhere. Texts may be of any length and content; a row shows them on one line.
class ZListItem
{
public:
    /// `type` is the layout of the row; a null text means the list's own (see ZListBox::setItemType), "%M" a text
    /// row, "%I%M" an icon and a text, "%P" a separator.
    ZListItem(ZListBox *list, const QString &type);
    virtual ~ZListItem();
    ZListItem(const ZListItem &) = delete;
    ZListItem &operator=(const ZListItem &) = delete;

    /// Rows are enabled from the start. A disabled row is shown greyed; it can still be reached and chosen, and the
    /// list reports it, so that whoever answers decides what a disabled row does.
    void setEnabled(bool enable);
    bool enabled() const;

    /// Turns the row into a separator for good: a heading over the rows below it, which the keys pass over and
    /// nothing chooses. `pixmap` may be null and is copied.
    void setSeparator(const QString &text, const QPixmap *pixmap);
    bool isSeparator() const;

    /// The list that the item was made on; null once that is destroyed.
    ZListBox *listBox() const;
    /// The row's layout, the list's own where the item names none.
    QString type() const;

    /// What a row shows: the separator's text, or its first and second column; null where there is none.
    virtual QString title() const;
    virtual QString value() const;
    /// The icon in front of the title; a null pixmap where there is none.
    virtual QPixmap icon() const;
    /// Whether the row asks for emphasis.
    virtual bool isMarked() const;

protected:
    /// To be called after a change of what the row shows. Repaints this row only.
    void changed();

private:
    friend class ZListBox;
    struct Private;
    std::unique_ptr<Private> d;
};
