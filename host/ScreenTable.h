// The screens that the plug-in has for the menu.
#pragma once

#include <QtCore/QString>

#include <array>

namespace host {

/// One screen. A new screen of the plug-in is a new row of the table below and nothing else.
struct ScreenEntry {
    const char *name;    ///< in scripts and on the command line, and the name that the screen is created with
    const char *create;  ///< the exported function that makes the screen
    const char *destroy; ///< the exported function that takes it back
    const char *key;     ///< the menu row in the catalogue
    const char *english; ///< the menu row where the catalogue has none
};

inline constexpr std::array<ScreenEntry, 1> screenTable{{
    {"callTime", "create_callTime", "destroy_callTime", "TXT_RID_HEADER_CALL_TIMES", "Call Times"},
}};

/// The row of the screen called `name`, -1 for none.
int screenIndex(const QString &name);

} // namespace host
