// The script of a tour.
#include "fuzz/Fuzz.h"

#include "host/tour/TourScript.h"

void tryBytes(QByteArrayView bytes)
{
    const host::tour::Script script = host::tour::parseScript(QStringLiteral("script"), QString::fromUtf8(bytes));
    REQUIRE(script.steps.size() <= host::tour::mostSteps);
    int line = 0;
    for (const host::tour::Step &step : script.steps) {
        REQUIRE(step.line > line);
        line = step.line;
    }
    for (const QString &mistake : script.mistakes)
        REQUIRE(mistake.startsWith(QStringLiteral("script:")));
}
