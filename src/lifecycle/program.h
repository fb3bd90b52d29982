// What the program owns: its windows, settings and results, wired. The wiring holds references into it, so it stays in
// place; assemble() alone makes one.
#pragma once

#include <memory>

#include "base/wiring.h"
#include "commands/main_commands.h"
#include "editor/find_bar.h"
#include "editor/recovery.h"
#include "editor/spelling.h"
#include "editor/undo_store.h"
#include "errors/reporting.h"
#include "lifecycle/program_directory.h"
#include "lifecycle/windows.h"
#include "settings/settings.h"
#include "settings/settings_files.h"

namespace lifecycle {

struct Program {
  base::Platform& platform;
  settings::Paths paths;
  bool createsDirectory = false;  // the program directory is the user's own and may be missing
  errors::ProgramInformation information;
  errors::Reporter reporter{platform, information};
  settings::Settings settings = {};
  // Of the settings files, nothing of which is read at first; what was not read is not overwritten without a copy.
  settings::ReadReport readReport{.problems = {}, .generalIsWhole = false, .listsAreWhole = false};
  frame::CalcResults results = {};
  editor::OpenDocument document = {};
  editor::OpenDocument containerDocument = {};
  editor::RecoveryCopy recovery{paths.programDirectory, "Wiederherstellung-", ".rtf"};
  editor::RecoveryCopy containerRecovery{paths.programDirectory, "Wiederherstellung-Container-", ".rtf"};
  editor::RecoveryCopy appointmentRecovery{paths.programDirectory, "Wiederherstellung-Termine-", ".ini"};
  editor::RecoveryCopy foilRecovery{paths.programDirectory, "Wiederherstellung-Folien-", ".pdb"};
  editor::RecoveryCopy priceRecovery{paths.programDirectory, "Wiederherstellung-Preise-", ".pdb"};
  editor::Spelling spelling{platform, paths.ownWords()};
  std::string fileToOpen;  // once the program stands, as the command line asks
  Windows windows = {};
  editor::UndoStore undo{windows.main.rtfText, settings.user.undoDepth};
  editor::UndoStore containerUndo{windows.container.rtfTextC, settings.user.undoDepth};
  editor::FindBar find = {};
  base::Wiring wiring = {};

  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() = default;

 private:
  friend std::unique_ptr<Program> assemble(base::Platform& platform, const ProgramDirectory& directory);
  Program(base::Platform& world, const ProgramDirectory& directory);
};

/// The parts that the procedures of the main window and of the container work on.
commands::MainParts partsOf(Program& program);
editor::ContainerParts containerPartsOf(Program& program);

}  // namespace lifecycle
