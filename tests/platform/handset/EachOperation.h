// Every operation as something to call.
#pragma once

#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/Operations.h"
#include "handset/PacketData.h"
#include "handset/Roles.h"
#include "handset/SimSecurity.h"

#include <array>
#include <tuple>
#include <type_traits>

namespace handset::test {

template <typename Role>
constexpr Role *(Handset::*accessorOf)() = nullptr;
template <>
inline constexpr auto accessorOf<CallService> = &Handset::callService;
template <>
inline constexpr auto accessorOf<CallLog> = &Handset::callLog;
template <>
inline constexpr auto accessorOf<DataCalls> = &Handset::dataCalls;
template <>
inline constexpr auto accessorOf<AdviceOfCharge> = &Handset::adviceOfCharge;
template <>
inline constexpr auto accessorOf<PacketData> = &Handset::packetData;
template <>
inline constexpr auto accessorOf<SimSecurity> = &Handset::simSecurity;

template <typename Role, typename... Parameters>
int askOf(int (Role::*operation)(Parameters...))
{
    std::tuple<std::decay_t<Parameters>...> arguments{};
    return withRole(accessorOf<Role>, [&](Role &role) {
        return std::apply([&](auto &...each) { return (role.*operation)(each...); }, arguments);
    });
}

#define KAV_ASK(role, operation, ...) +[] { return askOf(&role::operation); },
/// Asks the installed handset, as the phone's libraries do, with empty arguments; in the order of operationNames.
inline constexpr std::array<int (*)(), operationNames.size()> askEach{KAV_HANDSET_OPERATIONS(KAV_ASK)};
#undef KAV_ASK

} // namespace handset::test
