// A handset in front of another, or of none, with a hook before and after each of its operations.
#pragma once

#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "handset/Operations.h"
#include "handset/PacketData.h"
#include "handset/SimSecurity.h"

#include <optional>
#include <utility>

namespace handset {

/// To be inherited as DecoratedHandset<Hooks> by the class `Hooks`, which has its own of the two public hooks below, or
/// overloads of them for the arguments that it looks at. Everything that no hook answers is the other handset's, and
/// NotAvailable where there is none.
template <typename Hooks>
class DecoratedHandset : public Handset
{
public:
    explicit DecoratedHandset(std::shared_ptr<Handset> handset = nullptr)
        : behind(std::move(handset))
    {}
    Q_DISABLE_COPY_MOVE(DecoratedHandset)

    /// Runs before operation `operation` (a row of operationNames) is asked. A status is answered in its place, with what
    /// has been written to the arguments; those that go in are const.
    template <typename... Arguments>
    std::optional<int> before(int /*operation*/, Arguments &.../*arguments*/)
    {
        return {};
    }
    /// Runs when the operation has answered `status`, whoever answered it.
    template <typename... Arguments>
    void after(int /*operation*/, int /*status*/, const Arguments &.../*arguments*/)
    {}

    /// From now on this handset has not the role of that name ("CallLog").
    void takeAway(const QString &role)
    {
        const auto take = [&](const char *name, auto &mine) { mine.isTaken |= role == QLatin1StringView(name); };
        take("CallService", service);
        take("CallLog", log);
        take("DataCalls", data);
        take("AdviceOfCharge", charge);
        take("PacketData", packets);
        take("SimSecurity", sim);
    }

    /// Null where the role was taken away, and where the other handset has it not. Without another all are there.
    CallService *callService() override { return available(service); }
    CallLog *callLog() override { return available(log); }
    DataCalls *dataCalls() override { return available(data); }
    AdviceOfCharge *adviceOfCharge() override { return available(charge); }
    PacketData *packetData() override { return available(packets); }
    SimSecurity *simSecurity() override { return available(sim); }

    void setChangeListener(const std::function<void()> &listener) override
    {
        if (behind)
            behind->setChangeListener(listener);
    }
    void setWaitListener(const std::function<void(bool waits)> &listener) override
    {
        if (behind)
            behind->setWaitListener(listener);
    }
    LineControl *lineControl() override { return behind ? behind->lineControl() : nullptr; }
    calllog::Charging *charging() override { return behind ? behind->charging() : nullptr; }
    KeptCalls *keptCalls() override { return behind ? behind->keptCalls() : nullptr; }
    bool owesRecord() const override { return behind && behind->owesRecord(); }
    void changedElsewhere() override
    {
        if (behind)
            behind->changedElsewhere();
    }

private:
    template <typename Role, Role *(Handset::*accessor)()>
    class Decorated : public Role
    {
    public:
        explicit Decorated(DecoratedHandset &handset)
            : owner(handset)
        {}
        bool isTaken = false;
        Role *real() { return owner.behind ? ((*owner.behind).*accessor)() : nullptr; }

    protected:
        template <int operation, typename... Parameters, typename... Arguments>
        int run(int (Role::*call)(Parameters...), Arguments &...arguments)
        {
            auto &hooks = static_cast<Hooks &>(owner);
            std::optional<int> status = hooks.before(operation, arguments...);
            if (!status) {
                Role *const target = real();
                status = target ? (target->*call)(arguments...) : static_cast<int>(NotAvailable);
            }
            hooks.after(operation, *status, std::as_const(arguments)...);
            return *status;
        }

    private:
        DecoratedHandset &owner;
    };

#define KAV_DECORATE(role, operation, parameters, ...)                                                            \
    int operation parameters override                                                                             \
    {                                                                                                             \
        return this->template run<operationIndex(#role "::" #operation)>(&role::operation __VA_OPT__(, )          \
                                                                             __VA_ARGS__);                        \
    }
    struct DecoratedCallService final : Decorated<CallService, &Handset::callService> {
        using Decorated<CallService, &Handset::callService>::Decorated;
        KAV_CALL_SERVICE_OPERATIONS(KAV_DECORATE)
    };
    struct DecoratedCallLog final : Decorated<CallLog, &Handset::callLog> {
        using Decorated<CallLog, &Handset::callLog>::Decorated;
        KAV_CALL_LOG_OPERATIONS(KAV_DECORATE)
    };
    struct DecoratedDataCalls final : Decorated<DataCalls, &Handset::dataCalls> {
        using Decorated<DataCalls, &Handset::dataCalls>::Decorated;
        KAV_DATA_CALLS_OPERATIONS(KAV_DECORATE)
    };
    struct DecoratedAdviceOfCharge final : Decorated<AdviceOfCharge, &Handset::adviceOfCharge> {
        using Decorated<AdviceOfCharge, &Handset::adviceOfCharge>::Decorated;
        KAV_ADVICE_OF_CHARGE_OPERATIONS(KAV_DECORATE)
    };
    struct DecoratedPacketData final : Decorated<PacketData, &Handset::packetData> {
        using Decorated<PacketData, &Handset::packetData>::Decorated;
        KAV_PACKET_DATA_OPERATIONS(KAV_DECORATE)
        // It has no status and cannot fail: no operation.
        void setUpdateListener(const std::function<void()> &listener) override
        {
            if (PacketData *const target = this->real())
                target->setUpdateListener(listener);
        }
    };
    struct DecoratedSimSecurity final : Decorated<SimSecurity, &Handset::simSecurity> {
        using Decorated<SimSecurity, &Handset::simSecurity>::Decorated;
        KAV_SIM_SECURITY_OPERATIONS(KAV_DECORATE)
    };
#undef KAV_DECORATE

    template <typename Role>
    Role *available(Role &role)
    {
        return !role.isTaken && (!behind || role.real()) ? &role : nullptr;
    }

    const std::shared_ptr<Handset> behind;
    DecoratedCallService service{*this};
    DecoratedCallLog log{*this};
    DecoratedDataCalls data{*this};
    DecoratedAdviceOfCharge charge{*this};
    DecoratedPacketData packets{*this};
    DecoratedSimSecurity sim{*this};
};

} // namespace handset
