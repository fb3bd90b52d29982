// Reading numbers from text and writing them with two decimals, the same under every locale of the machine.
//
// A number text has an optional sign, digits and at most one point; there is no exponent and no grouping. Display
// rounds halves away from zero on the decimal value (of a double: its 15 significant digits), so 12.075 shows 12.08.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// The number at the start of `text`: leading blanks are skipped, reading stops at the first character that cannot
/// continue the number, no number gives 0. Only "." is a decimal separator. A number beyond double is error 6.
double leadingNumber(std::string_view text);

/// What a person typed as an amount: "," counts as ".", then as leadingNumber().
double typedAmount(std::string_view text);

/// Whether the whole of `text` is one number, "," counting as ".".
bool isTypedNumber(std::string_view text);

/// `text` as a whole number, blanks around it ignored; nothing when it is anything else or beyond 32 bits.
std::optional<int> wholeNumber(std::string_view text);

/// `text` rounded to a whole number, halves to even, blanks around it ignored and "," counting as "."; nothing when it
/// is no number. Error 6 beyond 32 bits.
std::optional<int> roundedNumber(std::string_view text);

/// `value` with two decimals behind `decimalSeparator`, at least one digit before it, no grouping; zero has no sign.
/// Error 6 when `value` is not finite.
std::string twoDecimals(double value, std::string_view decimalSeparator);

}  // namespace base
