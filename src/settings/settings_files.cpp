// The settings files.
#include "settings/settings_files.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <utility>

#include "base/build_values.h"
#include "base/number.h"
#include "base/profile_file.h"
#include "base/text.h"
#include "settings/ini.h"

namespace settings {
namespace {

using base::ErrorNumber;
using base::ProfileFile;

constexpr std::string_view kSection = "Einstellungen";
constexpr std::string_view kGeneralMarker = "Tessik 1.4 INI-Datei";
constexpr std::string_view kListsMarker = "Tessik 1.4 Rabatte-INI-Datei";
constexpr std::string_view kHeights = "Versalienhöhe";

void writeGeneralKeys(ProfileFile& file, const Settings& settings) {
  file.setValue(kSection, "Mwst", std::to_string(settings.rates.vatPercent));
  file.setValue(kSection, "Maßeinheit", settings.rates.unit);
  file.setValue(kSection, "Index1", std::to_string(settings.adjustments.surcharges.count));
  file.setValue(kSection, "Index2", std::to_string(settings.adjustments.discounts.count));
  file.setValue(kSection, "TVorn", std::to_string(settings.calculatorInFront));
  file.setValue(kSection, "LZ", std::to_string(settings.rates.countBlanks));
  file.setValue(kSection, "Snd", settings.reminderSound);
}

void writeAdjustments(ProfileFile& file, const Adjustments& adjustments) {
  replaceArray(file, "Rabatte", adjustments.surcharges.amounts);
  replaceArray(file, "RabatteTip", adjustments.surcharges.remarks);
  replaceArray(file, "Rabatte2", adjustments.discounts.amounts);
  replaceArray(file, "RabatteTip2", adjustments.discounts.remarks);
}

// The tags are those of the operations in which a key or a list fails to be written.
void save(ProfileFile& file, const std::string& path, File which) {
  const std::string_view tag = which == File::general ? "modGlobal-INISetValue" : "modGlobal-INISetArray";
  base::tagged(tag, [&] { file.save(path); });
}

// Reads one file and keeps account of what went wrong.
class Reader {
 public:
  Reader(std::string path, MissingNumber missing, ReadReport& report, bool& isWhole)
      : path_(std::move(path)), missing_(missing), report_(report), isWhole_(isWhole) {
    try {
      file_ = ProfileFile::load(path_);
    } catch (const base::Failure& failure) {
      problem(failure.number(), failure.text());
      isReadable_ = false;
    }
  }

  void text(std::string_view key, std::string& place) const {
    const auto found = file_.value(kSection, key, base::kSettingBuffer);
    if (found || (isReadable_ && missing_ == MissingNumber::isProblem)) place = found.value_or("");
  }

  void number(std::string_view key, int& place) {
    const auto found = file_.value(kSection, key, base::kSettingBuffer);
    if (!isReadable_ || (!found && missing_ == MissingNumber::keepsDefault)) return;
    const std::string stored = found.value_or("");
    if (const auto value = base::wholeNumber(stored)) {
      place = *value;
    } else {
      problem(ErrorNumber::typeMismatch,
              about(key, stored) + " ist keine ganze Zahl; es gilt " + std::to_string(place) + ".");
    }
  }

  // Held between `least` and `most`.
  void count(std::string_view key, int& place, int least, int most) {
    number(key, place);
    const int held = std::clamp(place, least, most);
    if (held == place) return;
    problem(ErrorNumber::indexOutOfRange, about(key, std::to_string(place)) + " liegt nicht zwischen " +
                                              std::to_string(least) + " und " + std::to_string(most) + "; es gilt " +
                                              std::to_string(held) + ".");
    place = held;
  }

  void array(std::string_view section, std::span<std::string> slots) {
    const std::vector<std::string> lines = file_.sectionLines(section);
    if (lines.size() > slots.size()) isWhole_ = false;
    std::copy_n(lines.begin(), std::min(lines.size(), slots.size()), slots.begin());
  }

  [[nodiscard]] const ProfileFile& file() const { return file_; }

 private:
  [[nodiscard]] std::string about(std::string_view key, const std::string& stored) const {
    return path_ + ": Der Wert \"" + stored + "\" der Einstellung \"" + std::string(key) + "\"";
  }

  void problem(ErrorNumber number, std::string line) {
    report_.problems.push_back({number, std::move(line)});
    isWhole_ = false;
  }

  std::string path_;
  MissingNumber missing_;
  bool isReadable_ = true;
  ProfileFile file_ = ProfileFile::parse("");
  ReadReport& report_;
  bool& isWhole_;
};

void readFurtherLists(Reader& lists, FurtherLists& further) {
  lists.number("Indexp1", further.indexp1);
  lists.count("Indexp2", further.indexp2, 0, FurtherLists::kPrices);
  lists.array(kHeights, further.capHeights);
  for (int i = 1; i <= further.indexp2; ++i) {
    const std::string section = std::string(kSection) + std::to_string(i);
    further.prices.at(static_cast<std::size_t>(i) - 1) =
        lists.file().value(section, "Preise2", base::kSettingBuffer).value_or("");
  }
}

}  // namespace

std::string pathOf(const Paths& paths, File file) {
  return file == File::general ? paths.generalSettings() : paths.adjustmentSettings();
}

void writeDefaults(const Paths& paths, const Settings& settings, File which) {
  const std::string path = pathOf(paths, which);
  ProfileFile file = ProfileFile::load(path);
  if (which == File::general) {
    file.setValue(kGeneralMarker, base::kMakerKey, base::kMakerNotice);
    writeGeneralKeys(file, settings);
  } else {
    file.setValue(kListsMarker, base::kMakerKey, base::kMakerNotice);
    file.setValue(kSection, "Indexp1", std::to_string(settings.further.indexp1));
    file.setValue(kSection, "Indexp2", std::to_string(settings.further.indexp2));
    writeAdjustments(file, settings.adjustments);
    replaceArray(file, kHeights, settings.further.capHeights);
  }
  save(file, path, which);
}

ReadReport readSettings(const Paths& paths, Settings& settings, MissingNumber missing) {
  ReadReport report;
  Reader lists(paths.adjustmentSettings(), missing, report, report.listsAreWhole);
  lists.array("Rabatte", settings.adjustments.surcharges.amounts);
  lists.array("RabatteTip", settings.adjustments.surcharges.remarks);
  lists.array("Rabatte2", settings.adjustments.discounts.amounts);
  lists.array("RabatteTip2", settings.adjustments.discounts.remarks);

  Reader general(paths.generalSettings(), missing, report, report.generalIsWhole);
  general.number("Mwst", settings.rates.vatPercent);
  general.text("Maßeinheit", settings.rates.unit);
  general.count("Index1", settings.adjustments.surcharges.count, 1, AdjustmentList::kSlots);
  general.count("Index2", settings.adjustments.discounts.count, 1, AdjustmentList::kSlots);
  general.number("TVorn", settings.calculatorInFront);
  general.number("LZ", settings.rates.countBlanks);
  general.text("Snd", settings.reminderSound);
  readFurtherLists(lists, settings.further);
  return report;
}

std::string defaultReminderSound(const std::string& systemRoot) {
  return base::joinPath(base::joinPath(systemRoot, "MEDIA"), "Chimes.wav");
}

void writeSettings(const Paths& paths, const Settings& settings, File which) {
  const std::string path = pathOf(paths, which);
  ProfileFile file = ProfileFile::load(path);
  if (which == File::general) {
    writeGeneralKeys(file, settings);
  } else {
    writeAdjustments(file, settings.adjustments);
  }
  save(file, path, which);
}

void saveSettings(const Paths& paths, const Settings& settings, File file, ReadReport& report) {
  bool& isWhole = file == File::general ? report.generalIsWhole : report.listsAreWhole;
  if (!isWhole) keepNumberedCopy(pathOf(paths, file));
  isWhole = true;
  writeSettings(paths, settings, file);
}

std::optional<std::string> keepNumberedCopy(const std::string& path) {
  if (!base::FileExists(path)) return std::nullopt;
  std::string copy;
  for (int number = 1;; ++number) {
    copy = path + "." + std::to_string(number);
    std::error_code ignored;
    if (!std::filesystem::exists(std::filesystem::symlink_status(copy, ignored))) break;
  }
  base::replaceFile(copy, base::readFile(path).value_or(""));
  std::error_code noMatter;
  std::filesystem::permissions(copy, std::filesystem::status(path, noMatter).permissions(), noMatter);
  return copy;
}

}  // namespace settings
