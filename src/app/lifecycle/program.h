// What the program owns: its windows, settings and results. The wiring holds references into it, so it stays in place.
#pragma once

#include "app/commands/main_commands.h"
#include "app/errors/reporting.h"
#include "app/frame/main_window.h"
#include "app/settings/settings.h"
#include "base/wiring.h"
#include "calc/picker.h"

namespace app::lifecycle {

struct Program {
  settings::Paths paths;
  settings::Settings settings;
  frame::MainWindow main;
  frame::CalcResults results;
  calc::PickerWindow picker;
  base::Wiring wiring;
};

/// The program's parts together with the world it runs in, as the main window's procedures want them.
commands::MainParts mainParts(Program& program, base::Platform& platform, base::RichText& document,
                              errors::Reporter& reporter);

/// Ties every event of every window to its procedure.
void wire(Program& program, const commands::MainParts& parts);

}  // namespace app::lifecycle
