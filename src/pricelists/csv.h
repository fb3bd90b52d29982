// Price lists as the text of a spreadsheet.
//
// A line holds name and price, parted by a semicolon or, in a text without one, by a tab. A field may be quoted; quotes
// inside are doubled, and line breaks inside part no line. The first line may be a heading. Prices are German: comma
// before the decimals, points between thousands, "€" or "EUR" beside the digits. Blank lines are passed over.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"

namespace pricelists {

/// A line of which no row is made.
struct CsvRefusal {
  int line = 0;      // counted from 1, the first of several
  std::string text;  // the line as it stands, of one line
  std::string reason;

  bool operator==(const CsvRefusal&) const = default;
};

struct CsvTable {
  std::string heading;              // the first line where that is no row
  std::vector<std::string> names;   // as List1 holds them
  std::vector<std::string> prices;  // as List2 holds them
  std::vector<CsvRefusal> refusals;
};

/// What a list can take of `text`, by the rules of what is typed. A text that holds neither semicolon nor tab is no
/// such table and a Failure.
CsvTable readCsv(std::string_view text);

/// The rows of a list below a heading; what is no number is written as it stands.
std::string writeCsv(std::string_view nameHeading, const base::ItemList& names, const base::ItemList& prices);

}  // namespace pricelists
