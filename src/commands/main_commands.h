// The main window's wiring: which event runs which procedure, and what follows the dialogs it opens.
#pragma once

#include "base/platform.h"
#include "base/wiring.h"
#include "calc/calc.h"
#include "calc/picker.h"
#include "editor/open_document.h"
#include "errors/reporting.h"
#include "frame/main_window.h"
#include "settings/settings.h"

namespace commands {

/// What the main window's procedures work on. All of it outlives the wiring.
struct MainParts {
  frame::MainWindow& window;
  settings::Settings& settings;
  settings::Paths& paths;
  frame::CalcResults& results;
  editor::OpenDocument& document;
  calc::PickerWindow& picker;
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireMainWindow(base::Wiring& wiring, const MainParts& parts);

/// The parts that the calculation takes of all these.
calc::CalcParts calcParts(const MainParts& parts);

/// Runs the calculation; a failure is the caller's.
void calculate(const MainParts& parts);

/// Selects an entry as a person does: the order labels, the tool tip and the calculation follow.
void selectSurcharge(const MainParts& parts, int index);
void selectDiscount(const MainParts& parts, int index);

/// Reads the price database again after it was edited; the selection is not restored.
void EditDatabase(const MainParts& parts);

}  // namespace commands
