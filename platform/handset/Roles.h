// How the libraries of the phone reach a role of the installed handset.
#pragma once

#include "handset/Handset.h"
#include "handset/Status.h"

/// Runs `call` on the role that `role` (a member of handset::Handset) answers; NotAvailable without a handset or
/// without the role. The handset is held for as long as the call lasts.
template <typename Role, typename Call>
int withRole(Role *(handset::Handset::*role)(), Call call)
{
    const std::shared_ptr<handset::Handset> handset = handset::current();
    Role *target = handset ? ((*handset).*role)() : nullptr;
    return target ? call(*target) : static_cast<int>(handset::NotAvailable);
}
