// Money as a count of ten-thousandths of a euro (or mark), and the texts in which it is shown.
//
// A double becomes currency as nearbyint(v × 10000): halves to even, out of range is error 6. There is deliberately no
// multiplication or division: intermediate products are doubles, and the caller says where they are rounded.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace base {

class Currency {
 public:
  constexpr Currency() = default;

  static constexpr Currency fromTenThousandths(std::int64_t count) { return Currency(count); }
  /// Rounds to four decimals, halves to even; error 6 when the result does not fit or `value` is not a number.
  static Currency fromDouble(double value);

  [[nodiscard]] constexpr std::int64_t tenThousandths() const { return count_; }
  [[nodiscard]] double toDouble() const { return static_cast<double>(count_) / 10000.0; }

  constexpr auto operator<=>(const Currency&) const = default;

  /// Sum and difference; error 6 when they leave the range of 64 bits.
  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  Currency& operator+=(Currency other) { return *this = *this + other; }
  Currency& operator-=(Currency other) { return *this = *this - other; }

 private:
  explicit constexpr Currency(std::int64_t count) : count_(count) {}

  std::int64_t count_ = 0;
};

/// Deutsche mark for one euro, fixed by Regulation (EC) No 2866/98.
inline constexpr double kDeutscheMarkPerEuro = 1.95583;

/// The amount with two decimals, halves away from zero; zero has no sign.
std::string twoDecimals(Currency amount, std::string_view decimalSeparator);

inline constexpr std::string_view kEuroSuffix = " EUR";
inline constexpr std::string_view kMarkSuffix = " DM";

}  // namespace base
