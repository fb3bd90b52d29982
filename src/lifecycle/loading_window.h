// The loading screen: version, status and a progress bar.
#pragma once

#include "base/controls.h"

namespace lifecycle {

// clang-format off
#define TESSIK_LOADING_CONTROLS(CONTROL)    \
  CONTROL(base::Label, lblVersion)          \
  CONTROL(base::Label, lblStatus)           \
  CONTROL(base::ProgressBar, Progress1)
// clang-format on

struct LoadingWindow : base::Window {
  LoadingWindow() : Window("frmLoad") {}

  TESSIK_CONTROLS(TESSIK_LOADING_CONTROLS)
};

}  // namespace lifecycle
