// Reading the settings that a price needs.
#include "app/settings/pricing_settings.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "base/number.h"
#include "base/profile_file.h"

namespace app::settings {
namespace {

using base::ErrorNumber;
using base::Failure;
using base::ProfileFile;

// A file together with its path, for messages.
struct Source {
  std::string path;
  ProfileFile file;

  explicit Source(std::string filePath) : path(std::move(filePath)), file(ProfileFile::load(path)) {}
};

int number(const Source& source, std::string_view key, int fallback) {
  const auto text = source.file.value("Einstellungen", key, base::kSettingBuffer);
  if (!text || text->empty()) return fallback;
  if (const auto value = base::wholeNumber(*text)) return *value;
  throw Failure(ErrorNumber::typeMismatch, "Der Wert \"" + *text + "\" der Einstellung \"" + std::string(key) +
                                               "\" in " + source.path + " ist keine ganze Zahl.");
}

int entryCount(const Source& source, std::string_view key) {
  const int count = number(source, key, 1);
  if (count >= 1 && count <= AdjustmentList::kSlots) return count;
  throw Failure(ErrorNumber::indexOutOfRange, "Die Anzahl " + std::to_string(count) + " der Einstellung \"" +
                                                  std::string(key) + "\" in " + source.path +
                                                  " liegt nicht zwischen 1 und 105.");
}

void fill(std::array<std::string, AdjustmentList::kSlots>& slots, const std::vector<std::string>& lines) {
  std::copy_n(lines.begin(), std::min(lines.size(), slots.size()), slots.begin());
}

}  // namespace

Settings readForPricing(const Paths& paths) {
  Settings settings;
  const Source general(paths.generalSettings());
  settings.rates.vatPercent = number(general, "Mwst", settings.rates.vatPercent);
  settings.rates.unit =
      general.file.value("Einstellungen", "Maßeinheit", base::kSettingBuffer).value_or(settings.rates.unit);
  settings.rates.countBlanks = number(general, "LZ", settings.rates.countBlanks);
  settings.adjustments.surcharges.count = entryCount(general, "Index1");
  settings.adjustments.discounts.count = entryCount(general, "Index2");

  const Source lists(paths.adjustmentSettings());
  fill(settings.adjustments.surcharges.amounts, lists.file.sectionLines("Rabatte"));
  fill(settings.adjustments.surcharges.remarks, lists.file.sectionLines("RabatteTip"));
  fill(settings.adjustments.discounts.amounts, lists.file.sectionLines("Rabatte2"));
  fill(settings.adjustments.discounts.remarks, lists.file.sectionLines("RabatteTip2"));
  return settings;
}

}  // namespace app::settings
