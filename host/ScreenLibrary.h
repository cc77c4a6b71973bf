// The plug-in library, reached only through its exported names.
#pragma once

#include "host/ScreenTable.h"

class QWidget;

namespace host {

class ScreenLibrary
{
public:
    using Create = QWidget *(QWidget *parent, const char *name);
    using Destroy = void(QWidget *screen);

    struct Functions {
        Create *create = nullptr;
        Destroy *destroy = nullptr;
    };

    /// Loads the library called `name` and resolves every function of the screen table. A bare name is looked for
    /// where the dynamic linker looks (so that another library can take its place), then beside the program's
    /// own library, then in the folder lib beside the program's folder. Returns one sentence that says what is missing, a null text on success.
    ///
    /// The library is never unloaded: events that its objects posted may outlive the last screen.
    QString load(const QString &name);

    /// The functions of row `index` of the screen table; the row must be in it.
    const Functions &functions(int index) const { return resolved.at(static_cast<std::size_t>(index)); }

private:
    std::array<Functions, screenTable.size()> resolved;
};

} // namespace host
