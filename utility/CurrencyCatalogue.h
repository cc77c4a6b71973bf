// The currencies of the world as the phone knows them: constant tables, no file is read.
#pragma once

#include "utility/ResourceText.h"

#include <span>

class QString;

namespace CurrencyCatalogue {

/// The 193 currencies that the cost setup offers, in display order: long key and English name (Latin-1), which ends
/// in the code in parentheses. The context of their translations is "PHONE_UI_RecentCallCostSetupView". Spellings,
/// double and trailing blanks are part of the vocabulary.
std::span<const ResourceText> rows();

/// The resource of the short text of `code`, which is also its English default: "units" or one of 171 codes, by
/// exact comparison. Null when the code is not in the short table. The context is "PHONE_UI_RecentCallMeter".
const ResourceText *shortText(const QString &code);

} // namespace CurrencyCatalogue
