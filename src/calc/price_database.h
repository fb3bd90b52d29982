// Loading the price database: the net price of one character for each cap height.
//
// The file has two sections with the keys "0", "1", "2", …: "Versalien" holds the cap heights, "Preise" the prices. The
// first missing or empty cap height ends the list. A price is found by position only; its text is not checked, and what
// is no number counts as its leading number.
#pragma once

#include <string>

#include "base/profile_file.h"
#include "frame/main_window.h"

namespace calc {

inline constexpr int kPriceWidth = 16;  // characters of a price text in List1, right-aligned

/// The price text as List1 holds it: right-aligned to kPriceWidth characters, "," turned into ".". Error 5 when it is
/// longer than that.
std::string alignedPrice(const std::string& price);

/// Fills cboBuchstabenhöhe and List1 from the file; a missing file leaves both empty. A price that is too long ends the
/// load with error 5 behind its cap height, which it names; what was loaded before stays.
void LoadPriceDatabase(frame::MainWindow& window, const std::string& file);
/// The same for a list in memory, which is told by `name`.
void loadPrices(frame::MainWindow& window, const base::ProfileFile& database, const std::string& name);

/// The net price of one character at position `index`; 0 where there is none.
double priceAt(const frame::MainWindow& window, int index);

}  // namespace calc
