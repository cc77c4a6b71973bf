// The screens that the plug-in has for the menu.
#pragma once

#include <QtCore/QString>

#include <array>

namespace host {

/// One screen. A new screen of the plug-in is a new row of the table below; the application needs no other change.
struct ScreenEntry {
    const char *name;    ///< in scripts and on the command line, and the name that the screen is created with
    const char *create;  ///< the exported function that makes the screen
    const char *destroy; ///< the exported function that takes it back
    const char *key;     ///< the menu row in the catalogue
    const char *english; ///< the menu row where the catalogue has none
};

inline constexpr std::array<ScreenEntry, 4> screenTable{{
    {"callTime", "create_callTime", "destroy_callTime", "TXT_RID_HEADER_CALL_TIMES", "Call Times"},
    {"callCost", "create_callCost", "destroy_callCost", "TXT_RID_HEADER_CALL_COSTS", "Call Costs"},
    {"dataTime", "create_dataTime", "destroy_dataTime", "TXT_RID_HEADER_DATA_TIMES", "Data Times"},
    {"dataVolume", "create_dataVolume", "destroy_dataVolume", "TXT_RID_HEADER_DATA_VOLUMES", "Data Volumes"},
}};

/// The row of the screen called `name`, -1 for none.
int screenIndex(const QString &name);

} // namespace host
