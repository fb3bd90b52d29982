// The wait window: what long work tells while it runs. It comes to the screen only when there is something to wait for.
#pragma once

#include <string>

#include "base/controls.h"
#include "base/platform.h"

namespace frame {

// clang-format off
#define TESSIK_WAIT_CONTROLS(CONTROL)       \
  CONTROL(base::Label, lblInfo)             \
  CONTROL(base::ProgressBar, Progress1)
// clang-format on

struct WaitWindow : base::Window {
  WaitWindow() : Window("frmWait") {}

  TESSIK_CONTROLS(TESSIK_WAIT_CONTROLS)
};

/// Long work: the hourglass and the wait window, from here to the end of its lifetime, however that comes.
class Waiting {
 public:
  Waiting(WaitWindow& window, base::Platform& platform, std::string text, int maximum);
  ~Waiting();
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  WaitWindow& window_;
  base::Platform& platform_;
};

}  // namespace frame
