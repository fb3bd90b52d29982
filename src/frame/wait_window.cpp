// The wait window.
#include "frame/wait_window.h"

#include <algorithm>
#include <utility>

namespace frame {

Waiting::Waiting(WaitWindow& window, base::Platform& platform, std::string text, int maximum)
    : window_(window), platform_(platform) {
  window.lblInfo.text = std::move(text);
  window.Progress1 = {};
  window.Progress1.maximum = maximum;
  platform.setHourglass(base::Hourglass::on);
  platform.show(window);
}

Waiting::~Waiting() {
  platform_.hide(window_);
  platform_.setHourglass(base::Hourglass::off);
}

WaitPhase::WaitPhase(WaitWindow& window, std::string_view name, int whole, std::string_view hint)
    : window_(window), name_(name), hint_(hint), whole_(std::max(whole, 1)) {
  window.Progress1.maximum = whole;
  window.Progress1.value = 0;
}

void WaitPhase::reached(int value) {
  window_.Progress1.value = value;
  const std::int64_t percent = std::int64_t{100} * value / whole_;
  if (std::exchange(shownPercent_, percent) == percent) return;
  window_.lblInfo.text = name_ + " [" + std::to_string(percent) + "%]" + hint_;
}

}  // namespace frame
