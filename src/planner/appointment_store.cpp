// The file of the appointments.
#include "planner/appointment_store.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/profile_file.h"
#include "base/text.h"
#include "planner/appointment.h"
#include "settings/settings_files.h"

namespace planner {
namespace {

constexpr std::string_view kPresent = "Termine";
constexpr std::string_view kOld = "TermineAlt";

std::array<std::uint64_t, 2> revisionsOf(const PlannerWindow& window) {
  return {window.Liste.items.revision(), window.List1.items.revision()};
}

// As if each line were added by itself: the later of two that differ in letter case alone stands in front.
std::vector<std::string> sortedSection(const base::ProfileFile& file, std::string_view section) {
  std::vector<std::string> lines;
  while (auto line = file.value(section, std::to_string(lines.size()), base::kListBuffer)) {
    if (line->empty()) break;
    lines.push_back(std::move(*line));
  }
  std::reverse(lines.begin(), lines.end());
  std::stable_sort(lines.begin(), lines.end(), sortsBefore);
  return lines;
}

void fill(base::ListBox& list, std::vector<std::string> lines) {
  list.clear();
  list.items.assign(std::move(lines));
}

// A damaged file may hold a section twice, the second of which would come to light.
void replaceSection(base::ProfileFile& file, std::string_view section, const base::ItemList& lines) {
  do file.deleteSection(section);
  while (!file.sectionLines(section).empty());
  for (int row = 0; row < lines.size(); ++row) file.setValue(section, std::to_string(row), lines[row]);
}

void replaceLists(base::ProfileFile& file, const base::ItemList& present, const base::ItemList& old) {
  replaceSection(file, kPresent, present);
  replaceSection(file, kOld, old);
}

}  // namespace

void Liste_füllen(PlannerWindow& window, const std::string& file) {
  base::tagged(kFillTag, [&] {
    const base::ProfileFile profile = base::ProfileFile::load(file);
    fill(window.Liste, sortedSection(profile, kPresent));
    fill(window.List1, sortedSection(profile, kOld));
    window.isRead = true;
    window.storedRevisions = revisionsOf(window);
  });
}

void Schreibe_neue_Liste(PlannerWindow& window, const std::string& file) {
  base::tagged(kWriteTag, [&] {
    if (!window.isRead) {
      constexpr std::string_view kRefusal =
          "Die Termine werden nicht gespeichert, denn was in der Datei steht, konnte nicht gelesen werden.";
      const auto number = base::ErrorNumber::pathFileAccess;
      throw base::Failure(number, base::withPlace(kRefusal, file, number));
    }
    base::ProfileFile profile = base::ProfileFile::load(file);
    replaceLists(profile, window.Liste.items, window.List1.items);
    profile.save(file);
    window.storedRevisions = revisionsOf(window);
  });
}

bool comesBack(std::string_view line) { return base::codePointCount(line) < base::kListBuffer; }

std::string listsAsFile(const PlannerWindow& window) {
  base::ItemList present = window.Liste.items;
  if (!window.takenOut.empty()) addSorted(present, window.takenOut);
  base::ProfileFile file = base::ProfileFile::parse({});
  replaceLists(file, present, window.List1.items);
  return file.bytes();
}

bool holdsAppointments(std::string_view lists) {
  const base::ProfileFile file = base::ProfileFile::parse(std::string(lists));
  return !sortedSection(file, kPresent).empty() || !sortedSection(file, kOld).empty();
}

void storeLists(const std::string& file, std::string_view lists) {
  const base::ProfileFile read = base::ProfileFile::parse(std::string(lists));
  base::ProfileFile profile = base::ProfileFile::load(file);
  base::ItemList present;
  base::ItemList old;
  present.assign(sortedSection(read, kPresent));
  old.assign(sortedSection(read, kOld));
  settings::keepNumberedCopy(file);
  replaceLists(profile, present, old);
  profile.save(file);
}

std::uint64_t revision(const PlannerWindow& window) {
  return window.Liste.items.revision() + window.List1.items.revision();
}

bool isUnsaved(const PlannerWindow& window) { return window.storedRevisions != revisionsOf(window); }

}  // namespace planner
