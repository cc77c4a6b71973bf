#include "toolkit/ZSettingItem.h"

#include <QtCore/qlogging.h>

#include <algorithm>

namespace {

bool isPlaceOrWarn(int line, ZSettingItem::SettingItemRegion region, const char *operation)
{
    const bool isRegion = region == ZSettingItem::TitleRegion || region == ZSettingItem::ValueRegion;
    if (line != 0 || !isRegion)
        qWarning("ZSettingItem::%s: there is no line %d, region %d", operation, line, static_cast<int>(region));
    return line == 0 && isRegion;
}

} // namespace

ZSettingItem::ZSettingItem(ZListBox *list, QString type)
    : ZListItem(list, type)
{}

ZSettingItem::~ZSettingItem() = default;

void ZSettingItem::appendSubItem(int line, QString text, bool marked, SettingItemRegion region)
{
    if (!isPlaceOrWarn(line, region, "appendSubItem"))
        return;
    subItems.append({text, region, marked});
    changed();
}

void ZSettingItem::setSubItem(int line, int subItem, QString text, bool marked, SettingItemRegion region)
{
    if (!isPlaceOrWarn(line, region, "setSubItem"))
        return;
    if (subItem < 0 || subItem > subItems.size()) {
        qWarning("ZSettingItem::setSubItem: there is no sub-item %d", subItem);
        return;
    }
    if (subItem == subItems.size())
        subItems.append(SubItem());
    subItems[subItem] = {text, region, marked};
    changed();
}

int ZSettingItem::subItemCount() const
{
    return static_cast<int>(subItems.size());
}

QString ZSettingItem::subItemText(int subItem) const
{
    return subItem >= 0 && subItem < subItems.size() ? subItems.at(subItem).text : QString();
}

QString ZSettingItem::title() const
{
    return isSeparator() ? ZListItem::title() : joined(TitleRegion);
}

QString ZSettingItem::value() const
{
    return isSeparator() ? QString() : joined(ValueRegion);
}

bool ZSettingItem::isMarked() const
{
    return std::any_of(subItems.cbegin(), subItems.cend(), [](const SubItem &subItem) { return subItem.marked; });
}

QString ZSettingItem::joined(SettingItemRegion region) const
{
    QString result;
    for (const SubItem &subItem : subItems) {
        if (subItem.region != region)
            continue;
        if (!result.isEmpty())
            result += QLatin1Char(' ');
        result += subItem.text;
    }
    return result;
}
