// Reading numbers from text and writing them with two decimals.
#include "base/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <system_error>

#include "base/failure.h"
#include "base/text.h"

namespace base {
namespace {

constexpr std::string_view kBlanks = " \t\v\f";
constexpr std::string_view kDigits = "0123456789";

std::string_view withoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text;
}

std::string_view withoutOuterBlanks(std::string_view text) {
  text = withoutLeadingBlanks(text);
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// The length of the digits and the one point at the start of `text`.
std::size_t magnitudeLength(std::string_view text) {
  std::size_t end = std::min(text.find_first_not_of(kDigits), text.size());
  if (end < text.size() && text[end] == '.') end = std::min(text.find_first_not_of(kDigits, end + 1), text.size());
  return end;
}

double parseMagnitude(std::string_view digits) {
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  if (result.ec != std::errc::result_out_of_range) return value;
  const std::string_view whole = digits.substr(0, digits.find('.'));
  if (whole.find_first_not_of('0') != std::string_view::npos) throw Failure(ErrorNumber::overflow);
  return 0;  // too small to be told from zero
}

// Adds one to the last digit of `digits`, carrying; the number may grow by a digit.
void incrementDecimal(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(digits.begin(), '1');
}

}  // namespace

double leadingNumber(std::string_view text) {
  text = withoutLeadingBlanks(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const double magnitude = parseMagnitude(text.substr(0, magnitudeLength(text)));
  return negative ? -magnitude : magnitude;
}

double typedAmount(std::string_view text) { return leadingNumber(withDecimalPoint(text)); }

bool isTypedNumber(std::string_view text) {
  const std::string pointed = withDecimalPoint(text);
  std::string_view rest = pointed;
  if (rest.starts_with('-') || rest.starts_with('+')) rest.remove_prefix(1);
  return rest.find_first_of(kDigits) != std::string_view::npos && magnitudeLength(rest) == rest.size();
}

std::optional<int> wholeNumber(std::string_view text) {
  text = withoutOuterBlanks(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  int value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<int> roundedNumber(std::string_view text) {
  text = withoutOuterBlanks(text);
  if (!isTypedNumber(text)) return std::nullopt;
  const double rounded = std::nearbyint(typedAmount(text));
  using Limits = std::numeric_limits<int>;
  if (rounded < Limits::min() || rounded > Limits::max()) throw Failure(ErrorNumber::overflow);
  return static_cast<int>(rounded);
}

std::string twoDecimals(double value, std::string_view decimalSeparator) {
  if (!std::isfinite(value)) throw Failure(ErrorNumber::overflow);
  // 15 significant digits in scientific form: d.dddddddddddddde±xx
  std::array<char, 32> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), "%.14e", std::fabs(value));
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(length));
  const std::size_t exponentAt = scientific.find('e');
  std::string digits(1, scientific[0]);
  digits += scientific.substr(exponentAt - 14, 14);
  int exponent = 0;
  const std::string_view exponentText = scientific.substr(exponentAt + (scientific[exponentAt + 1] == '+' ? 2 : 1));
  std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);

  // `kept` digits make up the value in hundredths; the digit behind them decides the rounding.
  const int kept = exponent + 3;
  std::string hundredths = "0";
  if (kept >= static_cast<int>(digits.size())) {
    hundredths = digits + std::string(static_cast<std::size_t>(kept) - digits.size(), '0');
  } else if (kept >= 0) {
    const auto keptDigits = static_cast<std::size_t>(kept);
    hundredths = "0" + digits.substr(0, keptDigits);
    if (digits[keptDigits] >= '5') incrementDecimal(hundredths);
  }
  hundredths.erase(0, std::min(hundredths.find_first_not_of('0'), hundredths.size()));
  const bool negative = value < 0 && !hundredths.empty();
  if (hundredths.size() < 3) hundredths.insert(0, 3 - hundredths.size(), '0');
  const std::size_t point = hundredths.size() - 2;
  return (negative ? "-" : "") + hundredths.substr(0, point) + std::string(decimalSeparator) + hundredths.substr(point);
}

}  // namespace base
