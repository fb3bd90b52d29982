// The rows of a price list: what may enter it, from the keyboard or from a table, and how it is listed.
//
// A row is a name (a cap height, a foil) and its price as List2 holds it: two decimals behind a point, " EUR", aligned
// to the right. Lengths are counts of characters.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/money.h"
#include "base/profile_file.h"
#include "calc/price_database.h"

namespace pricelists {

/// Whether a list of so many rows takes another one.
constexpr bool hasRoom(int rows) { return rows <= 32'000; }

/// Characters of a name that come back from the file.
inline constexpr std::size_t kLongestName = base::kListBuffer - 1;
inline constexpr std::string_view kNameTooLong = "Der Name ist zu lang, höchstens 254 Zeichen haben Platz.";

/// The row that keeps a place free.
calc::PriceRow freeRow();

/// A name as a row holds it: of one line.
std::string rowName(std::string_view typed);

/// Whether nothing would be left of `name` in the file: blanks alone, a NUL first, or a mere pair of quotes, which
/// would end the list there for the next reader.
bool leavesNoName(std::string_view name);

/// What was typed as a price, digits with at most one comma or point, as a row holds it. Error 13 when it is no number,
/// 5 when it is too long.
std::string preparedPrice(std::string_view typed);

/// The number in a row's price as a person types it: "1,25".
std::string typedPrice(std::string_view price, const base::NumberFormat& format);

/// Without the blanks around it, as it is stored.
std::string trimmedPrice(std::string_view price);

/// "." becomes ","; digits and "," pass.
std::optional<char32_t> priceKey(char32_t key);

/// What stands above a listing; `unit` is that of the heights.
std::string listingHead(std::string_view unit);

/// One row of a listing, the price ending in column 65. Error 5 when the name is longer than 40 characters or the price
/// than 25.
std::string listingLine(std::string_view name, std::string_view price);

}  // namespace pricelists
