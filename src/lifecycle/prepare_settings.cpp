// The load handler's part that sees to the settings.
#include "lifecycle/prepare_settings.h"

#include <string>

#include "base/build_values.h"
#include "base/files.h"
#include "lifecycle/first_use.h"
#include "settings/user_keys.h"

namespace lifecycle {
namespace {

using settings::File;

void tellCopy(frame::MainWindow& window, const std::string& copy) {
  const auto append = [](std::string& text, const char* opening, const std::string& what) {
    text += text.empty() ? opening : ", ";
    text += what;
  };
  append(window.lblHinweis.text, "Sicherung: ", copy.substr(copy.find_last_of("/\\") + 1));
  append(window.lblHinweis.toolTip, "Die bisherigen Einstellungen liegen in ", copy);
}

void keepCopy(Program& program, File file, settings::CopyWhen when = settings::CopyWhen::differs) {
  const auto copy = settings::keepNumberedCopy(pathOf(program.paths, file), when);
  if (copy) tellCopy(program.windows.main, *copy);
}

// Keys that have no default of a first start, such as the company address, stay.
void resetKeys(settings::UserKeys& keys) {
  const settings::UserKeys defaults;
  keys.version = base::kVersion;
  keys.windowState = defaults.windowState;
  keys.lastFile = defaults.lastFile;
  keys.beeper = defaults.beeper;
}

// Defaults over files of another installation: what they hold is kept beside them.
void writeFirstStart(Program& program, base::Platform& platform) {
  const bool isNew = !base::FileExists(pathOf(program.paths, File::general));
  // A store that refuses would make every start a first one; then the files stay as they are.
  if (!isNew) platform.saveUserSettings({{"RGF", program.settings.user.undoDepth}});
  keepCopy(program, File::lists);
  keepCopy(program, File::general);
  settings::writeDefaults(program.paths, program.settings, File::lists);
  if (isNew) {
    settings::writeDefaults(program.paths, program.settings, File::general);
  } else {
    settings::writeSettings(program.paths, program.settings, File::general);
  }
  settings::writeFirstStartKeys(platform);
  resetKeys(program.settings.user);
}

bool mayCreate(base::Platform& platform, const std::string& what, const std::string& name) {
  const base::Message question{
      .text = what + " nicht vorhanden oder defekt!\r            Soll eine neue " + name + " erstell werden?",
      .title = "Fehler",
      .icon = base::MessageIcon::exclamation,
      .buttons = base::MessageButtons::yesNo};
  return platform.messageBox(question) == base::MessageAnswer::yes;
}

StartUp createIfMissing(Program& program, const commands::MainParts& parts, File file) {
  if (base::FileExists(pathOf(program.paths, file))) return StartUp::goesOn;
  parts.platform.hide(program.windows.loading);
  const bool may = file == File::general
                       ? mayCreate(parts.platform, "Einstellungs-Initialisierungsdatei", "Ostrowerk.ini")
                       : mayCreate(parts.platform, "Rabatte Initialisierungsdatei", "Tessik.ini");
  if (!may) return StartUp::ends;
  errors::reporting(parts.reporter, kLoadTag, [&] { settings::writeDefaults(program.paths, program.settings, file); });
  parts.platform.show(program.windows.loading);
  return StartUp::goesOn;
}

// One message for all that could not be read; the defaults stand in for it.
void read(Program& program) {
  settings::ReadReport& report = program.readReport;
  report = settings::readSettings(program.paths, program.settings, settings::MissingNumber::isProblem);
  program.settings.reminderSound = settings::wholeSoundPath(program.settings.reminderSound, program.settings.user);
  if (!report.problems.empty()) throw settings::failureOf(report.problems);
}

void keepWhatWasNotRead(Program& program) {
  settings::ReadReport& report = program.readReport;
  if (!report.generalIsWhole) keepCopy(program, File::general);
  report.generalIsWhole = true;  // or kept
  if (!report.listsAreWhole) {
    keepCopy(program, File::lists);
  } else if (!report.restIsWhole) {
    keepCopy(program, File::lists, settings::CopyWhen::restDiffers);
  }
  report.listsAreWhole = true;
}

}  // namespace

// Each step reports on its own, so that whatever happens before it, what can be read is read.
StartUp prepareSettings(Program& program, const commands::MainParts& parts) {
  const auto step = [&](auto&& procedure) { errors::reporting(parts.reporter, kLoadTag, procedure); };
  step([&] { settings::readUserKeys(parts.platform, program.settings.user); });
  bool hasDirectory = false;
  step([&] {
    if (program.createsDirectory) createOnFirstUse(program.paths.programDirectory);
    hasDirectory = true;
  });
  if (!hasDirectory) return StartUp::goesOn;  // with the defaults in memory
  if (program.settings.user.version != base::kVersion) {
    step([&] { writeFirstStart(program, parts.platform); });
  }
  for (const File file : {File::general, File::lists}) {
    if (createIfMissing(program, parts, file) == StartUp::ends) return StartUp::ends;
  }
  step([&] { read(program); });
  step([&] { keepWhatWasNotRead(program); });
  return StartUp::goesOn;
}

}  // namespace lifecycle
