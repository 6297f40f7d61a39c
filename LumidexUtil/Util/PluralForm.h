#pragma once

namespace Zenvora::Util {

/// Grammatical number of a counted noun, as far as three plural forms go.
enum class PluralForm { One, Nominative, Genetive, Plural };

/// The form for `count`. Remainders keep the sign of `count`, so every negative count takes `Plural`.
constexpr PluralForm PluralFormOf(int count) {
  if (count == 1) {
    return PluralForm::One;
  }
  const int hundreds = count % 100;
  if (hundreds >= 11 && hundreds <= 19) {
    return PluralForm::Plural;
  }
  const int last = hundreds % 10;
  if (last == 1) {
    return PluralForm::Nominative;
  }
  return last >= 2 && last <= 4 ? PluralForm::Genetive : PluralForm::Plural;
}

}  // namespace Zenvora::Util
