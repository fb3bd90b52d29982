// What the program owns: its windows, settings and results. The wiring holds references into it, so it stays in place.
#pragma once

#include "base/build_values.h"
#include "base/version.h"
#include "base/wiring.h"
#include "calc/picker.h"
#include "commands/main_commands.h"
#include "errors/reporting.h"
#include "frame/main_window.h"
#include "lifecycle/loading_window.h"
#include "settings/settings.h"
#include "settings/settings_files.h"

namespace lifecycle {

struct Program {
  settings::Paths paths;
  bool createsDirectory = false;  // the program directory is the user's own and may be missing
  settings::Settings settings;
  frame::MainWindow main;
  frame::CalcResults results;
  calc::PickerWindow picker;
  LoadingWindow loading;
  errors::ProgramInformation information{
      .version = base::kVersion, .build = std::string(base::kBuildText), .directory = {}};
  // Of the settings files, nothing of which is read at first; what was not read is not overwritten without a copy.
  settings::ReadReport readReport{.problems = {}, .generalIsWhole = false, .listsAreWhole = false};
  base::Wiring wiring;
};

/// The program's parts together with the world it runs in, as the main window's procedures want them.
commands::MainParts mainParts(Program& program, base::Platform& platform, base::RichText& document,
                              errors::Reporter& reporter);

}  // namespace lifecycle
