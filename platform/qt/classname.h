// The embedded edition's virtual QObject::className(), which the installed Qt lacks.
#pragma once

#include <QtCore/QMetaObject>
#include <QtCore/qobjectdefs.h>

/// Put right after Q_OBJECT in a class that the phone asks for its name. Declares the virtual operation
/// `const char *className() const`, which answers the name of the most derived class that carries the macro; the
/// text belongs to the meta-object and lives as long as the library. Leaves the access at `private:`.
#define KAV_CLASS_NAME                                                                                            \
public:                                                                                                           \
    QT_WARNING_PUSH                                                                                               \
    QT_WARNING_DISABLE_CLANG("-Winconsistent-missing-override")                                                   \
    virtual const char *className() const                                                                         \
    {                                                                                                             \
        return staticMetaObject.className();                                                                      \
    }                                                                                                             \
    QT_WARNING_POP                                                                                                \
private:
