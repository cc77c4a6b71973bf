// What a row keeps, shared with its list. Inside the toolkit only.
#pragma once

#include "toolkit/ZListItem.h"

#include <QtGui/QPixmap>

#include <optional>

struct ZListItem::Private {
    ZListBox *list = nullptr; // the list clears it when it is destroyed first
    QString type;
    QString heading; // of a separator
    std::optional<QPixmap> icon;
    bool isHeading = false;
    bool isEnabled = true;
};
