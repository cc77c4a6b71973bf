// A telephone that does what a test scripts, and records what it is asked.
#pragma once

#include "ScriptedRoles.h"

#include "Handset.h"

/// Every operation of every role is recorded in the journal as "Role::operation" and answers as scripted. No backend
/// code is involved. A new role is a class in ScriptedRoles.h, and a member and an accessor here.
class ScriptedHandset final : public handset::Handset
{
public:
    ScriptedHandset();

    handset::CallService *callService() override { return available("CallService", service); }
    handset::CallLog *callLog() override { return available("CallLog", log); }
    handset::DataCalls *dataCalls() override { return available("DataCalls", data); }
    handset::AdviceOfCharge *adviceOfCharge() override { return available("AdviceOfCharge", charge); }
    handset::PacketData *packetData() override { return available("PacketData", packets); }
    handset::SimSecurity *simSecurity() override { return available("SimSecurity", sim); }

    Script script;

    /// The telephone has this role no longer: its accessor answers null.
    void takeAway(const QString &role) { missingRoles.append(role); }

private:
    template <typename Role>
    Role *available(const char *name, Role &role)
    {
        return missingRoles.contains(QLatin1StringView(name)) ? nullptr : &role;
    }

    QStringList missingRoles;
    ScriptedCallService service{script};
    ScriptedCallLog log{script};
    ScriptedDataCalls data{script};
    ScriptedAdviceOfCharge charge{script};
    ScriptedPacketData packets{script};
    ScriptedSimSecurity sim{script};
};

/// Makes a scripted telephone the one that the phone's libraries talk to, for as long as it lives.
class InstalledHandset
{
public:
    InstalledHandset();
    ~InstalledHandset();
    Q_DISABLE_COPY_MOVE(InstalledHandset)

    ScriptedHandset *operator->() const { return handset.get(); }
    Script &script() const { return handset->script; }

private:
    std::shared_ptr<ScriptedHandset> handset;
};
