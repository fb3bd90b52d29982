// The settings files.
#include "settings/settings_files.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>
#include <span>
#include <utility>

#include "base/build_values.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "base/number.h"
#include "base/profile_file.h"
#include "base/version.h"
#include "settings/ini.h"

namespace settings {
namespace {

using base::ErrorNumber;
using base::ProfileFile;

constexpr std::string_view kSection = "Einstellungen";
constexpr std::string_view kHeights = "Versalienhöhe";
constexpr std::array<std::string_view, 4> kAdjustmentLists = {"Rabatte", "RabatteTip", "Rabatte2", "RabatteTip2"};

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
  replaceArray(file, kAdjustmentLists[0], adjustments.surcharges.amounts);
  replaceArray(file, kAdjustmentLists[1], adjustments.surcharges.remarks);
  replaceArray(file, kAdjustmentLists[2], adjustments.discounts.amounts);
  replaceArray(file, kAdjustmentLists[3], adjustments.discounts.remarks);
}

// One replacement of the file for all that `write` changes, under the tag of the operation that would fail first.
template <typename Write>
void change(const std::string& path, std::string_view tag, Write&& write) {
  base::tagged(tag, [&] {
    ProfileFile file = ProfileFile::load(path);
    write(file);
    file.save(path);
  });
}

std::string marker(std::string_view kind) { return base::versionLine().append(" ").append(kind); }

// Reads one file and keeps account of what went wrong.
class Reader {
 public:
  Reader(std::string path, MissingNumber missing, ReadReport& report, bool& isWhole)
      : path_(std::move(path)), missing_(missing), report_(report), isWhole_(&isWhole) {
    try {
      file_ = ProfileFile::load(path_);
    } catch (const base::Failure& failure) {
      problem(failure.number(), base::errorText(failure.number()), kGetValueTag);
      isReadable_ = false;
    }
  }

  /// From here on what goes wrong is noted there.
  void noteIn(bool& isWhole) { isWhole_ = &isWhole; }

  void text(std::string_view key, std::string& place) const {
    const auto found = file_.value(kSection, key, base::kSettingBuffer);
    if (found || (isReadable_ && missing_ == MissingNumber::isProblem)) place = found.value_or("");
  }

  void number(std::string_view key, int& place) {
    const auto found = file_.value(kSection, key, base::kSettingBuffer);
    if (!isReadable_ || (!found && missing_ == MissingNumber::keepsDefault)) return;
    const std::string stored = found.value_or("");
    const std::string holds = "; es gilt " + std::to_string(place) + ".";
    try {
      const auto value = base::roundedNumber(stored);
      if (!value) problem(ErrorNumber::typeMismatch, about(key, stored) + " ist keine Zahl" + holds);
      place = value.value_or(place);
    } catch (const base::Failure& failure) {
      problem(failure.number(), about(key, stored) + " ist zu groß" + holds);
    }
  }

  // Of a list with `most` places; one below 0 stands for none.
  void count(std::string_view key, int& place, int most) {
    number(key, place);
    if (place > most) {
      const std::string limit = std::to_string(most);
      problem(ErrorNumber::indexOutOfRange,
              about(key, std::to_string(place)) + " ist größer als " + limit + "; es gilt " + limit + ".");
    }
    place = std::clamp(place, 0, most);
  }

  void array(std::string_view section, std::span<std::string> slots) {
    const std::vector<std::string> lines = file_.sectionLines(section);
    constexpr std::size_t kWhole = std::numeric_limits<std::size_t>::max();
    if (lines.size() > slots.size() || lines != file_.sectionLines(section, kWhole)) *isWhole_ = false;
    std::copy_n(lines.begin(), std::min(lines.size(), slots.size()), slots.begin());
  }

  [[nodiscard]] const ProfileFile& file() const { return file_; }

 private:
  static std::string about(std::string_view key, const std::string& stored) {
    return "Der Wert \"" + stored + "\" der Einstellung \"" + std::string(key) + "\"";
  }

  void problem(ErrorNumber number, std::string sentence, std::string_view tag = {}) {
    report_.problems.push_back({number, std::move(sentence), path_, tag});
    *isWhole_ = false;
  }

  std::string path_;
  MissingNumber missing_;
  bool isReadable_ = true;
  ProfileFile file_ = ProfileFile::parse("");
  ReadReport& report_;
  bool* isWhole_;
};

void readFurtherLists(Reader& lists, FurtherLists& further) {
  lists.number("Indexp1", further.indexp1);
  lists.count("Indexp2", further.indexp2, FurtherLists::kPrices);
  lists.array(kHeights, further.capHeights);
  for (int i = 1; i <= further.indexp2; ++i) {
    const std::string section = std::string(kSection) + std::to_string(i);
    further.prices.at(static_cast<std::size_t>(i) - 1) =
        lists.file().value(section, "Preise2", base::kSettingBuffer).value_or("");
  }
}

// A lists file without the lists that the end of a session writes anew.
std::string rest(const std::string& bytes) {
  ProfileFile file = ProfileFile::parse(bytes);
  for (const std::string_view list : kAdjustmentLists) file.deleteSection(list);
  return file.bytes();
}

std::optional<std::string> readable(const std::string& path) {
  try {
    return base::readFile(path);
  } catch (const base::Failure&) {
    return std::nullopt;
  }
}

}  // namespace

std::string pathOf(const Paths& paths, File file) {
  return file == File::general ? paths.generalSettings() : paths.adjustmentSettings();
}

void writeDefaults(const Paths& paths, const Settings& settings, File which) {
  change(pathOf(paths, which), kSetValueTag, [&](ProfileFile& file) {
    if (which == File::general) {
      file.setValue(marker("INI-Datei"), base::kMakerKey, base::kMakerNotice);
      return writeGeneralKeys(file, settings);
    }
    file.setValue(marker("Rabatte-INI-Datei"), base::kMakerKey, base::kMakerNotice);
    file.setValue(kSection, "Indexp1", std::to_string(settings.further.indexp1));
    file.setValue(kSection, "Indexp2", std::to_string(settings.further.indexp2));
    writeAdjustments(file, settings.adjustments);
    replaceArray(file, kHeights, settings.further.capHeights);
  });
}

ReadReport readSettings(const Paths& paths, Settings& settings, MissingNumber missing) {
  ReadReport report;
  Reader lists(paths.adjustmentSettings(), missing, report, report.listsAreWhole);
  lists.array(kAdjustmentLists[0], settings.adjustments.surcharges.amounts);
  lists.array(kAdjustmentLists[1], settings.adjustments.surcharges.remarks);
  lists.array(kAdjustmentLists[2], settings.adjustments.discounts.amounts);
  lists.array(kAdjustmentLists[3], settings.adjustments.discounts.remarks);

  Reader general(paths.generalSettings(), missing, report, report.generalIsWhole);
  general.number("Mwst", settings.rates.vatPercent);
  general.text("Maßeinheit", settings.rates.unit);
  general.count("Index1", settings.adjustments.surcharges.count, AdjustmentList::kSlots);
  general.count("Index2", settings.adjustments.discounts.count, AdjustmentList::kSlots);
  general.number("TVorn", settings.calculatorInFront);
  general.number("LZ", settings.rates.countBlanks);
  general.text("Snd", settings.reminderSound);
  lists.noteIn(report.restIsWhole);
  readFurtherLists(lists, settings.further);
  return report;
}

base::Failure failureOf(const std::vector<ReadProblem>& problems) {
  std::string text;
  for (std::size_t i = 0; i < problems.size(); ++i) {
    const ReadProblem& problem = problems[i];
    const bool isLast = i + 1 == problems.size();
    const bool placeFollows =
        isLast || problems[i + 1].path != problem.path || problems[i + 1].number != problem.number;
    text += problem.sentence;
    if (placeFollows) text = base::withPlace(text, problem.path, problem.number);
    if (!isLast) text += '\n';
  }
  base::Failure failure(problems.front().number, text);
  failure.stamp(problems.front().tag);
  return failure;
}

std::string defaultReminderSound(const std::string& systemRoot) {
  return base::joinPath(base::joinPath(systemRoot, "MEDIA"), "Chimes.wav");
}

void writeSettings(const Paths& paths, const Settings& settings, File which) {
  const bool isGeneral = which == File::general;
  change(pathOf(paths, which), isGeneral ? kSetValueTag : kSetArrayTag, [&](ProfileFile& file) {
    if (isGeneral) {
      writeGeneralKeys(file, settings);
    } else {
      writeAdjustments(file, settings.adjustments);
    }
  });
}

void saveSettings(const Paths& paths, const Settings& settings, File file, ReadReport& report) {
  bool& isWhole = file == File::general ? report.generalIsWhole : report.listsAreWhole;
  if (!isWhole) keepNumberedCopy(pathOf(paths, file));
  isWhole = true;
  writeSettings(paths, settings, file);
}

std::optional<std::string> keepNumberedCopy(const std::string& path, CopyWhen when) {
  if (!base::FileExists(path)) return std::nullopt;
  const std::string bytes = base::readFile(path).value_or("");
  const auto stateOf = [when](const std::string& file) { return when == CopyWhen::differs ? file : rest(file); };
  const std::string state = stateOf(bytes);
  for (int number = 1;; ++number) {
    const std::string copy = path + "." + std::to_string(number);
    std::error_code ignored;
    if (!std::filesystem::exists(std::filesystem::symlink_status(copy, ignored))) {
      base::writeCopy(copy, bytes, path);
      return copy;
    }
    const auto kept = readable(copy);
    if (kept && stateOf(*kept) == state) return copy;
  }
}

}  // namespace settings
