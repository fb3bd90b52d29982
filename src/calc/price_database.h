// Loading the price database: the net price of one character for each cap height.
//
// The file has two sections with the keys "0", "1", "2", …: "Versalien" holds the cap heights, "Preise" the prices. The
// first missing or empty cap height ends the list. A price is found by position only; its text is not checked, and what
// is no number counts as its leading number.
//
// The prices of a first start bear a mark of their own in the file, which goes when the shop saves its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/profile_file.h"
#include "frame/main_window.h"

namespace calc {

inline constexpr int kPriceWidth = 16;  // characters of a price text in List1, right-aligned

/// Where a price list stands in the file, and what a row of it is called.
struct PriceList {
  std::string_view names;   // section of the names
  std::string_view prices;  // section of the prices
  std::string_view row;     // in the genitive
};

inline constexpr PriceList kCapHeights{.names = "Versalien", .prices = "Preise", .row = "der Buchstabenhöhe"};

struct PriceRow {
  std::string name;
  std::string price;

  bool operator==(const PriceRow&) const = default;
};

/// The rows as they are stored, up to the first one that is missing or has no name.
std::vector<PriceRow> storedRows(const base::ProfileFile& file, const PriceList& list);

/// Whether the prices of `file` are those of a first start.
bool areSamples(const base::ProfileFile& file, const PriceList& list);
void markAsSamples(base::ProfileFile& file, const PriceList& list);
void unmarkAsSamples(base::ProfileFile& file, const PriceList& list);

/// What tells a person that prices are samples.
inline constexpr std::string_view kSamplesHint = "Musterpreise: bitte eigene Preise eintragen";

/// The price text as List1 holds it: right-aligned to kPriceWidth characters, "," turned into ".". Error 5 when it is
/// longer than that.
std::string alignedPrice(const std::string& price);
/// The same for a stored row, which a failure names together with its file.
std::string alignedPrice(const PriceRow& row, const PriceList& list, const std::string& file);

/// Fills cboBuchstabenhöhe and List1 from the file; a missing file leaves both empty. A price that is too long ends the
/// load with error 5 behind its cap height, which it names; what was loaded before stays. Sample prices are told in
/// lblHinweis.
void LoadPriceDatabase(frame::MainWindow& window, const std::string& file);
/// The same for a list in memory, which is told by `name`.
void loadPrices(frame::MainWindow& window, const base::ProfileFile& database, const std::string& name);

/// The net price of one character at position `index`; 0 where there is none.
double priceAt(const frame::MainWindow& window, int index);

}  // namespace calc
