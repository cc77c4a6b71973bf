#include "ScriptedHandset.h"

namespace {

template <typename Role>
void makeKnown(Script &script)
{
    for (const char *operation : Role::operations)
        script.makeKnown(operation);
}

} // namespace

ScriptedHandset::ScriptedHandset()
{
    makeKnown<ScriptedCallService>(script);
    makeKnown<ScriptedCallLog>(script);
    makeKnown<ScriptedDataCalls>(script);
    makeKnown<ScriptedAdviceOfCharge>(script);
    makeKnown<ScriptedPacketData>(script);
    makeKnown<ScriptedSimSecurity>(script);
}

InstalledHandset::InstalledHandset()
    : handset(std::make_shared<ScriptedHandset>())
{
    handset::install(handset);
}

InstalledHandset::~InstalledHandset()
{
    handset::install(nullptr);
}
