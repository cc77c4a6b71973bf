// Texts of the application's translation catalogue.
#pragma once

#include "qt/translation.h"

/// A text of the catalogue: its key (ASCII) and its English default (Latin-1).
struct ResourceText {
    const char *key;
    const char *english;
};

/// `resource` in the catalogue, with the name of `Class` as the context.
template <typename Class>
QString textFor(const ResourceText &resource)
{
    return translatedFor<Class>(resource.key, resource.english);
}
