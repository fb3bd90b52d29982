// Money as it is shown: two decimals with the user's separator and the currency behind it.
#pragma once

#include <string>

#include "base/currency.h"
#include "base/number.h"

namespace base {

/// The separators of the user's locale, each one character in UTF-8.
struct NumberFormat {
  std::string decimalSeparator = ",";
  std::string groupSeparator = ".";
};

/// "0.00 EUR" of a Currency or a double.
template <typename Amount>
std::string euroText(Amount amount, const NumberFormat& format) {
  return twoDecimals(amount, format.decimalSeparator).append(kEuroSuffix);
}

/// "0.00 DM" of a Currency or a double.
template <typename Amount>
std::string markText(Amount amount, const NumberFormat& format) {
  return twoDecimals(amount, format.decimalSeparator).append(kMarkSuffix);
}

/// "0.00" with a decimal point: the form in which an amount stands in a text that is read back later.
template <typename Amount>
std::string storedAmount(Amount amount) {
  return twoDecimals(amount, ".");
}

}  // namespace base
