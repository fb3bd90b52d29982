// The sort dialog: asks for the order, sorts the lines it was given, and shows how far that is.
#pragma once

#include <optional>

#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "editor/line_sorting.h"
#include "errors/reporting.h"

namespace editor {

// clang-format off
#define TESSIK_SORT_CONTROLS(CONTROL)                                   \
  CONTROL(base::Label, lblInfo)                                         \
  CONTROL(base::OptionButton, optAuf)      /* ascending */              \
  CONTROL(base::OptionButton, optAb)       /* descending */             \
  CONTROL(base::ProgressBar, Progress1)    /* the outer pass */         \
  CONTROL(base::ProgressBar, Progress2)    /* the inner pass */         \
  CONTROL(base::Button, cmdGo)                                          \
  CONTROL(base::Button, cmdExit)
// clang-format on

enum class SortResult { aborted, completed };

struct SortWindow : base::Window {
  SortWindow() : Window("frmSort") { optAuf.checked = true; }

  TESSIK_CONTROLS(TESSIK_SORT_CONTROLS)

  Lines lines;
  SortResult result = SortResult::aborted;
};

/// Esc ends a sort and leaves the dialog open for another attempt; closing it without one that was completed aborts.
void wireSort(base::Wiring& wiring, SortWindow& window, base::Platform& platform, errors::Reporter& reporter);

/// Shows the dialog for `lines` and returns them sorted; nothing when that was aborted.
std::optional<Lines> sortByDialog(SortWindow& window, Lines lines, base::Platform& platform);

}  // namespace editor
