// Memory and files around a backup.
#include "lifecycle/restored_data.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "calc/adjustments.h"
#include "commands/planner_commands.h"
#include "commands/price_list_commands.h"
#include "commands/tool_commands.h"
#include "planner/planner.h"
#include "settings/user_keys.h"

namespace lifecycle {
namespace {

using backup::Kind;
using settings::File;
using settings::Settings;

constexpr std::string_view kBackupTag = "BACKUP-cmdBackup";

bool contains(const std::vector<Kind>& kinds, Kind kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

std::vector<File> settingsFilesOf(const std::vector<Kind>& kinds) {
  std::vector<File> files;
  if (contains(kinds, Kind::options)) files.push_back(File::general);
  if (contains(kinds, Kind::adjustments)) files.push_back(File::lists);
  return files;
}

// The counts of the lists stand among the general settings.
void takeGeneral(Settings& settings, const Settings& read) {
  settings.rates = read.rates;
  settings.calculatorInFront = read.calculatorInFront;
  settings.reminderSound = settings::wholeSoundPath(read.reminderSound, settings.user);
  settings.adjustments.surcharges.count = read.adjustments.surcharges.count;
  settings.adjustments.discounts.count = read.adjustments.discounts.count;
}

void takeList(settings::AdjustmentList& list, const settings::AdjustmentList& read) {
  list.amounts = read.amounts;
  list.remarks = read.remarks;
}

void takeLists(Settings& settings, const Settings& read) {
  takeList(settings.adjustments.surcharges, read.adjustments.surcharges);
  takeList(settings.adjustments.discounts, read.adjustments.discounts);
  settings.further = read.further;
}

// Into empty settings, so that no line of a longer list stays behind. Only what was restored is taken over.
void readSettingsAgain(Program& program, const std::vector<File>& files) {
  Settings fresh;
  fresh.reminderSound = settings::defaultReminderSound(program.platform.systemRoot());
  const settings::ReadReport report = settings::readSettings(program.paths, fresh, settings::MissingNumber::isProblem);
  std::vector<settings::ReadProblem> problems;
  for (const File file : files) {
    if (file == File::general) {
      takeGeneral(program.settings, fresh);
      program.readReport.generalIsWhole = report.generalIsWhole;
    } else {
      takeLists(program.settings, fresh);
      program.readReport.listsAreWhole = report.listsAreWhole;
    }
    std::copy_if(report.problems.begin(), report.problems.end(), std::back_inserter(problems),
                 [path = pathOf(program.paths, file)](const auto& problem) { return problem.path == path; });
  }
  if (!problems.empty()) throw settings::failureOf(problems);
}

}  // namespace

void saveForBackup(Program& program, const std::vector<Kind>& kinds) {
  for (const File file : settingsFilesOf(kinds)) {
    errors::reporting(program.reporter, kBackupTag,
                      [&] { settings::saveSettings(program.paths, program.settings, file, program.readReport); });
  }
  if (!contains(kinds, Kind::appointments)) return;
  errors::reporting(program.reporter, kBackupTag,
                    [&] { planner::saveLoaded(commands::plannerParts(partsOf(program))); });
}

void readRestored(Program& program, const std::vector<Kind>& kinds) {
  const commands::MainParts parts = partsOf(program);
  const std::vector<File> files = settingsFilesOf(kinds);
  errors::reporting(program.reporter, kBackupTag, [&] { readSettingsAgain(program, files); });
  if (!files.empty()) calc::refillAdjustments(parts.window, program.settings.adjustments);
  commands::followCalculatorSetting(parts);
  const bool havePrices = contains(kinds, Kind::prices);
  havePrices ? commands::readFoilsAgain(parts) : commands::followRates(parts);
  errors::reporting(program.reporter, kBackupTag,
                    [&] { havePrices ? commands::readPricesAgain(parts) : commands::calculate(parts); });
  if (contains(kinds, Kind::appointments)) {
    errors::reporting(program.reporter, kBackupTag, [&] { planner::refillLoaded(commands::plannerParts(parts)); });
  }
}

}  // namespace lifecycle
