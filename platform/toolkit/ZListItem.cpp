#include "toolkit/ZListItem.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZListItemPrivate.h"

ZListItem::ZListItem(ZListBox *list, const QString &type)
    : d(std::make_unique<Private>())
{
    d->list = list;
    d->type = type;
    if (list)
        list->adopt(this);
}

ZListItem::~ZListItem()
{
    if (d->list)
        d->list->forget(this);
}

void ZListItem::setEnabled(bool enable)
{
    if (d->isEnabled == enable)
        return;
    d->isEnabled = enable;
    changed();
}

bool ZListItem::enabled() const
{
    return d->isEnabled;
}

void ZListItem::setSeparator(const QString &text, const QPixmap *pixmap)
{
    d->isHeading = true;
    d->heading = text;
    d->icon = pixmap ? std::optional(*pixmap) : std::nullopt;
    changed();
}

bool ZListItem::isSeparator() const
{
    return d->isHeading || d->type == QLatin1String("%P");
}

ZListBox *ZListItem::listBox() const
{
    return d->list;
}

QString ZListItem::type() const
{
    return d->type.isNull() && d->list ? d->list->itemType() : d->type;
}

QString ZListItem::title() const
{
    return d->heading;
}

QString ZListItem::value() const
{
    return QString();
}

QPixmap ZListItem::icon() const
{
    return d->icon.value_or(QPixmap());
}

bool ZListItem::isMarked() const
{
    return false;
}

void ZListItem::changed()
{
    if (d->list)
        d->list->itemChanged(this);
}
