// A handset that does what a test scripts, and records what it is asked.
#pragma once

#include "support/Script.h"

#include "handset/DecoratedHandset.h"

/// Every operation of every role is recorded in the journal as "Role::operation" and answers as scripted. No backend
/// code is involved.
class ScriptedHandset final : public handset::DecoratedHandset<ScriptedHandset>
{
public:
    template <typename... Arguments>
    std::optional<int> before(int operation, Arguments &...arguments)
    {
        return script.play(operation, arguments...);
    }

    Script script;
};

/// Makes a scripted handset the one that the phone's libraries talk to, for as long as it lives.
class InstalledHandset
{
public:
    InstalledHandset() { handset::install(handset); }
    ~InstalledHandset() { handset::install(nullptr); }
    Q_DISABLE_COPY_MOVE(InstalledHandset)

    ScriptedHandset *operator->() const { return handset.get(); }
    Script &script() const { return handset->script; }

private:
    const std::shared_ptr<ScriptedHandset> handset = std::make_shared<ScriptedHandset>();
};
