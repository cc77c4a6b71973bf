// How the libraries of the phone reach a role of the installed telephone.
#pragma once

#include "handset/Handset.h"
#include "handset/Status.h"

/// Runs `call` on the role that `role` (a member of handset::Handset) answers; NotAvailable without a telephone or
/// without the role. The telephone is held for as long as the call lasts.
template <typename Role, typename Call>
int withRole(Role *(handset::Handset::*role)(), Call call)
{
    const std::shared_ptr<handset::Handset> telephone = handset::current();
    Role *target = telephone ? ((*telephone).*role)() : nullptr;
    return target ? call(*target) : static_cast<int>(handset::NotAvailable);
}
