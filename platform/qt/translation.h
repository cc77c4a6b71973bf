// Translation as the phone does it: a resource key, and an English default where the catalogue has no entry.
#pragma once

#include <QtCore/QString>

/// The text of resource `key` in the application's catalogue. The translator is asked with (`context`, `key`,
/// `english`); where it has no entry the English default is the answer, while the installed Qt would answer the
/// key. `english` is Latin-1, as all texts of the system are, and reaches the translator as UTF-8; `context` and
/// `key` are ASCII. A null `english` counts as the empty text; a null `context` or `key` gives the English default
/// without asking.
QString translated(const char *context, const char *key, const char *english);

/// The same with the class name of `Class` as the context, as that class's own tr() has it.
template <typename Class>
QString translatedFor(const char *key, const char *english)
{
    return translated(Class::staticMetaObject.className(), key, english);
}
