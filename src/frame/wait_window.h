// The wait window: what long work tells while it runs. It comes to the screen only when there is something to wait for.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

/// One phase of long work in the wait window: its name and how much of it is done, "Drucken [37%]", and `hint` behind
/// that.
class WaitPhase {
 public:
  WaitPhase(WaitWindow& window, std::string_view name, int whole, std::string_view hint = {});
  void reached(int value);

 private:
  WaitWindow& window_;
  std::string name_;
  std::string hint_;
  std::int64_t whole_;
  std::int64_t shownPercent_ = -1;  // the text is made anew only when it changes
};

}  // namespace frame
