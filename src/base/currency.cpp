// Money as a count of ten-thousandths.
#include "base/currency.h"

#include <cmath>

#include "base/failure.h"

namespace base {

Currency Currency::fromDouble(double value) {
  const double count = std::nearbyint(value * 10000.0);
  constexpr double kLimit = 9223372036854775808.0;  // 2^63, the first double beyond the range
  if (!(count >= -kLimit && count < kLimit)) throw Failure(ErrorNumber::overflow);
  return Currency(static_cast<std::int64_t>(count));
}

Currency operator+(Currency a, Currency b) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(a.count_, b.count_, &sum)) throw Failure(ErrorNumber::overflow);
  return Currency(sum);
}

Currency operator-(Currency a, Currency b) {
  std::int64_t difference = 0;
  if (__builtin_sub_overflow(a.count_, b.count_, &difference)) throw Failure(ErrorNumber::overflow);
  return Currency(difference);
}

std::string twoDecimals(Currency amount, std::string_view decimalSeparator) {
  const std::int64_t count = amount.tenThousandths();
  const std::uint64_t magnitude =
      count < 0 ? ~static_cast<std::uint64_t>(count) + 1 : static_cast<std::uint64_t>(count);
  const std::uint64_t cents = magnitude / 100 + (magnitude % 100 >= 50 ? 1 : 0);
  std::string fraction = std::to_string(cents % 100);
  if (fraction.size() < 2) fraction.insert(0, "0");
  const bool negative = count < 0 && cents != 0;
  return (negative ? "-" : "") + std::to_string(cents / 100) + std::string(decimalSeparator) + fraction;
}

}  // namespace base
