// Loading the price database.
#include "calc/price_database.h"

#include <vector>

#include "base/failure.h"
#include "base/number.h"
#include "base/profile_file.h"
#include "base/text.h"

namespace calc {
namespace {

constexpr std::size_t kShownOfPrice = 20;  // of a price that is too long

}  // namespace

std::string alignedPrice(const std::string& price) {
  const std::size_t length = base::codePointCount(price);
  if (length > kPriceWidth) {
    throw base::Failure(base::ErrorNumber::invalidCall, "Preisdatenbank: Der Preis \"" +
                                                            std::string(base::firstCodePoints(price, kShownOfPrice)) +
                                                            "…\" ist zu lang, höchstens 16 Zeichen haben Platz.");
  }
  return std::string(kPriceWidth - length, ' ') + base::withDecimalPoint(price);
}

void LoadPriceDatabase(frame::MainWindow& window, const std::string& file) {
  window.cboBuchstabenhöhe.clear();
  window.List1.items.clear();
  const base::ProfileFile database = base::ProfileFile::load(file);
  for (int entry = 0;; ++entry) {
    const std::string key = std::to_string(entry);
    const std::string height = database.value("Versalien", key, base::kListBuffer).value_or("");
    if (height.empty()) return;
    window.cboBuchstabenhöhe.items.add(height);
    window.List1.items.push_back(alignedPrice(database.value("Preise", key, base::kListBuffer).value_or("")));
  }
}

double priceAt(const frame::MainWindow& window, int index) {
  const auto& prices = window.List1.items;
  if (index < 0 || static_cast<std::size_t>(index) >= prices.size()) return 0;
  return base::leadingNumber(prices[static_cast<std::size_t>(index)]);
}

}  // namespace calc
