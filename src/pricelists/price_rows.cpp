// The rows of a price list.
#include "pricelists/price_rows.h"

#include <array>
#include <charconv>

#include "base/failure.h"
#include "base/number.h"
#include "base/profile_lines.h"
#include "base/text.h"
#include "calc/adjustments.h"

namespace pricelists {
namespace {

using base::ErrorNumber;
using base::Failure;

constexpr std::string_view kFree = "<FREI>";
constexpr std::size_t kNameColumn = 40;
constexpr std::size_t kPriceColumn = 25;

// The blanks that fill `text` up to `width` characters; none may be missing.
std::string padding(std::string_view text, std::size_t width) {
  const std::size_t length = base::codePointCount(text);
  if (length <= width) return std::string(width - length, ' ');
  constexpr auto kNumber = ErrorNumber::invalidCall;
  throw Failure(kNumber, base::withPlace("In der Liste haben höchstens " + std::to_string(width) + " Zeichen Platz.",
                                         "\"" + std::string(text) + "\"", kNumber));
}

}  // namespace

calc::PriceRow freeRow() { return {std::string(kFree), calc::alignedPrice(std::string(kFree))}; }

std::string rowName(std::string_view typed) {
  return base::replaceAll(base::withWindowsLineEnds(typed), base::kLineBreak, " ");
}

bool leavesNoName(std::string_view name) {
  const std::string_view left = base::withoutOuterBlanks(name);
  return left.empty() || left.front() == '\0' || left == "\"\"" || left == "''";
}

std::string preparedPrice(std::string_view typed) {
  constexpr auto kNumber = ErrorNumber::typeMismatch;
  if (!base::isTypedNumber(typed)) {
    throw Failure(kNumber, base::withPlace("Der Preis ist keine Zahl.", "\"" + std::string(typed) + "\"", kNumber));
  }
  const std::string price = base::storedAmount(base::typedAmount(typed)).append(base::kEuroSuffix);
  if (base::codePointCount(price) <= calc::kPriceWidth) return calc::alignedPrice(price);
  constexpr auto kTooLong = ErrorNumber::invalidCall;
  throw Failure(kTooLong, base::withPlace("Der Preis ist zu lang, höchstens 16 Zeichen haben Platz.", price, kTooLong));
}

std::string typedPrice(std::string_view price, const base::NumberFormat& format) {
  std::array<char, 400> digits{};
  const char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), base::leadingNumber(price), std::chars_format::fixed)
          .ptr;
  return base::replaceAll({digits.data(), end}, ".", format.decimalSeparator);
}

std::string trimmedPrice(std::string_view price) { return std::string(base::withoutOuterBlanks(price)); }

std::optional<char32_t> priceKey(char32_t key) {
  if (key == U',' || key == U'.') return U',';
  return calc::quantityKey(key);
}

std::string listingHead(std::string_view unit) {
  constexpr std::size_t kBlanksBeforePrice = 45;
  std::string head = "\r\n\r\nVersalienhöhe" + std::string(kBlanksBeforePrice, ' ') + "Preis:\r\nin ";
  return head.append(unit).append("\r\n\r\n");
}

std::string listingLine(std::string_view name, std::string_view price) {
  std::string line(name);
  line.append(padding(name, kNameColumn)).append(padding(price, kPriceColumn));
  return line.append(price).append(base::kLineBreak);
}

}  // namespace pricelists
