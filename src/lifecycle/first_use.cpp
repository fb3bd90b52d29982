// The user's own program directory on first use.
#include "lifecycle/first_use.h"

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/files.h"
#include "calc/price_database.h"
#include "settings/settings.h"

namespace lifecycle {
namespace {

// Cap height in millimetres and price of a character, of the order that small workshops ask for cut lettering.
constexpr std::array<std::pair<std::string_view, std::string_view>, 20> kSamplePrices = {{
    {"10", "0.85 EUR"},  {"15", "0.90 EUR"},  {"20", "0.95 EUR"},   {"25", "1.05 EUR"},   {"30", "1.15 EUR"},
    {"40", "1.35 EUR"},  {"50", "1.60 EUR"},  {"60", "1.85 EUR"},   {"70", "2.10 EUR"},   {"80", "2.40 EUR"},
    {"90", "2.70 EUR"},  {"100", "3.00 EUR"}, {"120", "3.70 EUR"},  {"150", "4.90 EUR"},  {"180", "6.20 EUR"},
    {"200", "7.10 EUR"}, {"250", "9.50 EUR"}, {"300", "12.20 EUR"}, {"400", "18.50 EUR"}, {"500", "26.00 EUR"},
}};

}  // namespace

base::ProfileFile samplePriceList() {
  base::ProfileFile file = base::ProfileFile::parse("");
  calc::markAsSamples(file, calc::kCapHeights);
  for (std::size_t i = 0; i < kSamplePrices.size(); ++i) {
    file.setValue(calc::kCapHeights.names, std::to_string(i), kSamplePrices.at(i).first);
    file.setValue(calc::kCapHeights.prices, std::to_string(i), kSamplePrices.at(i).second);
  }
  return file;
}

bool isFirstUse(const std::string& directory) {
  std::error_code ignored;
  return !std::filesystem::exists(directory, ignored);
}

void createOnFirstUse(const std::string& directory) {
  if (!isFirstUse(directory)) return;
  std::error_code error;
  // Made beside its place and renamed: a directory without its files would never be filled again.
  const std::string draft = directory + ".neu";
  std::filesystem::create_directories(draft, error);
  if (error) throw base::fileFailure(error.value(), draft);
  samplePriceList().save(settings::Paths{draft}.priceDatabase());
  std::filesystem::rename(draft, directory, error);
  std::error_code ignored;
  if (error && std::filesystem::is_directory(directory, ignored)) return;  // another start was quicker
  if (error) throw base::fileFailure(error.value(), directory);
}

}  // namespace lifecycle
