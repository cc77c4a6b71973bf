// Unit prices as a test writes them.
#pragma once

#include "charging/UnitPrice.h"
#include "handset/Status.h"

#include <QtCore/QString>

namespace handset::test {

inline charging::UnitPrice priceOf(const QString &text)
{
    charging::UnitPrice price;
    if (charging::UnitPrice::fromText(text, price) != Success)
        qFatal("no such price: %s", qPrintable(text));
    return price;
}

} // namespace handset::test
