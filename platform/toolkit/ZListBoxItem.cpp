#include "toolkit/ZListBoxItem.h"

#include <QtCore/qlogging.h>

ZListBoxItem::ZListBoxItem(ZListBox *list, QString type)
    : ZListItem(list, type)
{}

ZListBoxItem::~ZListBoxItem() = default;

void ZListBoxItem::appendSubItem(int subItem, QString text, QString, const QPixmap *pixmap, unsigned int,
                                 ShowPriority)
{
    if (subItem < 0) {
        qWarning("ZListBoxItem::appendSubItem: there is no sub-item %d", subItem);
        return;
    }
    subItems[subItem] = {text, pixmap ? std::optional(*pixmap) : std::nullopt};
    changed();
}

QString ZListBoxItem::getSubItemText(int line, int subItem, bool) const
{
    const auto it = subItems.find(subItem);
    return line == 0 && it != subItems.cend() ? it->second.text : QString();
}

QString ZListBoxItem::title() const
{
    if (isSeparator())
        return ZListItem::title();
    for (const auto &entry : subItems) {
        if (!entry.second.text.isEmpty())
            return entry.second.text;
    }
    return QString();
}

QPixmap ZListBoxItem::icon() const
{
    if (isSeparator())
        return ZListItem::icon();
    for (const auto &entry : subItems) {
        if (entry.second.pixmap && !entry.second.pixmap->isNull())
            return *entry.second.pixmap;
    }
    return QPixmap();
}
