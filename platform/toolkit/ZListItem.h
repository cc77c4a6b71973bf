// A row of a ZListBox.
#pragma once

#include <QtCore/QString>

#include <memory>

class QPixmap;
class ZListBox;

/// One row, made on a list and shown once it is inserted there. The list owns every item made on it, inserted or
/// not; deleting an item takes it out of its list. An item made on a null list belongs to its maker.
class ZListItem
{
public:
    /// `type` is the layout of the row; a null text means the list's own (see ZListBox::setItemType), "%M" a text
    /// row, "%I%M" an icon and a text, "%P" a separator.
    ZListItem(ZListBox *list, const QString &type);
    virtual ~ZListItem();
    ZListItem(const ZListItem &) = delete;
    ZListItem &operator=(const ZListItem &) = delete;

    /// A disabled row is shown greyed, can be reached, and is not reported as chosen... see ZListBox::selected().
    void setEnabled(bool enable);
    bool enabled() const;

    /// Turns the row into a separator: a heading over the rows below it, which the keys pass over. `pixmap` may be
    /// null and is copied.
    void setSeparator(const QString &text, const QPixmap *pixmap);
    bool isSeparator() const;

    ZListBox *listBox() const;
    QString type() const;

    /// What a row shows: the separator's text, or its first and second column; null where there is none.
    virtual QString title() const;
    virtual QString value() const;

protected:
    /// To be called after a change of what the row shows.
    void changed();

private:
    friend class ZListBox;
    struct Private;
    std::unique_ptr<Private> d;
};
