// The wait window.
#include "frame/wait_window.h"

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

}  // namespace frame
