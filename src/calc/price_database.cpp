// Loading the price database.
#include "calc/price_database.h"

#include <string_view>

#include "base/failure.h"
#include "base/number.h"
#include "base/profile_file.h"
#include "base/text.h"

namespace calc {
namespace {

constexpr std::size_t kShownOfText = 20;

// The beginning of a text that may be long, in quotes.
std::string quoted(const std::string& text) {
  const std::string_view shown = base::firstCodePoints(text, kShownOfText);
  return "\"" + std::string(shown) + (shown.size() < text.size() ? "…\"" : "\"");
}

base::Failure tooLong(const std::string& price, const std::string& height, const std::string& list) {
  constexpr auto kNumber = base::ErrorNumber::invalidCall;
  const std::string sentence = "Der Preis " + quoted(price) + " der Buchstabenhöhe " + quoted(height) +
                               " ist zu lang, höchstens 16 Zeichen haben Platz.";
  return base::Failure(kNumber, base::withPlace(sentence, list, kNumber));
}

void clear(frame::MainWindow& window) {
  window.cboBuchstabenhöhe.clear();
  window.List1.items.clear();
}

}  // namespace

std::string alignedPrice(const std::string& price) {
  const std::size_t length = base::codePointCount(price);
  if (length > kPriceWidth) throw base::Failure(base::ErrorNumber::invalidCall);
  return std::string(kPriceWidth - length, ' ') + base::withDecimalPoint(price);
}

void LoadPriceDatabase(frame::MainWindow& window, const std::string& file) {
  clear(window);
  loadPrices(window, base::ProfileFile::load(file), file);
}

void loadPrices(frame::MainWindow& window, const base::ProfileFile& database, const std::string& name) {
  clear(window);
  for (int entry = 0;; ++entry) {
    const std::string key = std::to_string(entry);
    const std::string height = database.value("Versalien", key, base::kListBuffer).value_or("");
    if (height.empty()) return;
    window.cboBuchstabenhöhe.items.add(height);
    const std::string price = database.value("Preise", key, base::kListBuffer).value_or("");
    if (base::codePointCount(price) > kPriceWidth) throw tooLong(price, height, name);
    window.List1.items.push_back(alignedPrice(price));
  }
}

double priceAt(const frame::MainWindow& window, int index) {
  const auto& prices = window.List1.items;
  if (index < 0 || static_cast<std::size_t>(index) >= prices.size()) return 0;
  return base::leadingNumber(prices[static_cast<std::size_t>(index)]);
}

}  // namespace calc
