#include "support/Surroundings.h"

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

void Surroundings::prepare()
{
    static constexpr const char *surroundings[][2] = {
        {"QT_QPA_PLATFORM", "offscreen"}, {"QT_FONT_DPI", "96"}, {"QT_SCALE_FACTOR", "1"},
        {"QT_STYLE_OVERRIDE", "fusion"},  {"LC_ALL", "C.UTF-8"}, {"LANGUAGE", "C"},
    };
    for (const auto &[name, value] : surroundings) {
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    }
}
