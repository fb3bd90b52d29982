// Loading the price database.
#include "calc/price_database.h"

#include <string_view>
#include <utility>

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

base::Failure tooLong(const PriceRow& row, const PriceList& list, const std::string& file) {
  constexpr auto kNumber = base::ErrorNumber::invalidCall;
  const std::string sentence = "Der Preis " + quoted(row.price) + " " + std::string(list.row) + " " + quoted(row.name) +
                               " ist zu lang, höchstens 16 Zeichen haben Platz.";
  return base::Failure(kNumber, base::withPlace(sentence, file, kNumber));
}

constexpr std::string_view kSamples = "Muster";  // the section that marks sample prices

// The line may be taken by something else that has to be told.
void tellSamples(base::Label& hint, bool areSamples) {
  if (areSamples && hint.text.empty()) hint.text = kSamplesHint;
  if (!areSamples && hint.text == kSamplesHint) hint.text.clear();
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

std::string alignedPrice(const PriceRow& row, const PriceList& list, const std::string& file) {
  if (base::codePointCount(row.price) > kPriceWidth) throw tooLong(row, list, file);
  return alignedPrice(row.price);
}

void LoadPriceDatabase(frame::MainWindow& window, const std::string& file) {
  clear(window);
  loadPrices(window, base::ProfileFile::load(file), file);
}

std::vector<PriceRow> storedRows(const base::ProfileFile& file, const PriceList& list) {
  std::vector<PriceRow> rows;
  for (int entry = 0;; ++entry) {
    const std::string key = std::to_string(entry);
    std::string name = file.value(list.names, key, base::kListBuffer).value_or("");
    if (name.empty()) return rows;
    rows.push_back({std::move(name), file.value(list.prices, key, base::kListBuffer).value_or("")});
  }
}

bool areSamples(const base::ProfileFile& file, const PriceList& list) {
  return file.value(kSamples, list.prices, base::kListBuffer) == "1";
}

void markAsSamples(base::ProfileFile& file, const PriceList& list) { file.setValue(kSamples, list.prices, "1"); }

void unmarkAsSamples(base::ProfileFile& file, const PriceList& list) {
  if (areSamples(file, list)) file.deleteSection(kSamples);
}

void loadPrices(frame::MainWindow& window, const base::ProfileFile& database, const std::string& name) {
  clear(window);
  tellSamples(window.lblHinweis, areSamples(database, kCapHeights));
  for (const PriceRow& row : storedRows(database, kCapHeights)) {
    window.cboBuchstabenhöhe.items.add(row.name);
    window.List1.items.push_back(alignedPrice(row, kCapHeights, name));
  }
}

double priceAt(const frame::MainWindow& window, int index) {
  const auto& prices = window.List1.items;
  if (index < 0 || static_cast<std::size_t>(index) >= prices.size()) return 0;
  return base::leadingNumber(prices[static_cast<std::size_t>(index)]);
}

}  // namespace calc
