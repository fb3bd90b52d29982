// The sort dialog.
#include "editor/sort_window.h"

#include <utility>

namespace editor {
namespace {

void enableButtons(SortWindow& window, bool enabled) {
  window.cmdGo.enabled = enabled;
  window.cmdExit.enabled = enabled;
}

void showBars(SortWindow& window, int maximum) {
  for (base::ProgressBar* const bar : {&window.Progress1, &window.Progress2}) {
    bar->minimum = 0;
    bar->maximum = maximum;
    bar->value = 0;
  }
}

void invite(SortWindow& window) {
  window.lblInfo.text =
      "Bitte wählen Sie ob Aufsteigend oder Absteigend sortiert werden soll. ACHTUNG: Alle Formatierungen gehen bei "
      "diesem Vorgang verloren!!!";
  enableButtons(window, /*enabled=*/true);
}

// The time that the dialog sorts, with the hourglass; however it ends without a result, the person is asked again.
class Sorting {
 public:
  Sorting(SortWindow& window, base::Platform& platform) : window_(window), platform_(platform) {
    window.lblInfo.text = "Sortiere ... \rAbbruch mit Esc";
    enableButtons(window, /*enabled=*/false);
    showBars(window, static_cast<int>(window.lines.size()) - 1);
    platform.setHourglass(base::Hourglass::on);
  }
  ~Sorting() {
    if (window_.result == SortResult::aborted) {
      invite(window_);
      window_.cmdGo.wantsFocus = true;
    }
    platform_.setHourglass(base::Hourglass::off);
  }
  Sorting(const Sorting&) = delete;
  Sorting& operator=(const Sorting&) = delete;

 private:
  SortWindow& window_;
  base::Platform& platform_;
};

void sort(SortWindow& window, base::Platform& platform) {
  window.result = SortResult::aborted;
  const Sorting sorting(window, platform);
  const bool hasEnded = shellSort(window.lines, window.optAuf.checked ? SortOrder::ascending : SortOrder::descending,
                                  {.outer = window.Progress1.value, .inner = window.Progress2.value},
                                  [&platform] { return !platform.escapePressed(); });
  if (hasEnded) window.result = SortResult::completed;
}

// Closing is asked for without the hourglass, which would drop that as well.
void Sortieren(SortWindow& window, base::Platform& platform) {
  sort(window, platform);
  if (window.result == SortResult::completed) platform.close(window);
}

}  // namespace

void wireSort(base::Wiring& wiring, SortWindow& window, base::Platform& platform, errors::Reporter& reporter) {
  wiring.on(window.cmdGo, base::Event::click, [&window, &platform, &reporter] {
    errors::reporting(reporter, "SORT-Sortieren", [&] { Sortieren(window, platform); });
  });
  wiring.on(window.cmdExit, base::Event::click, [&window, &platform] { platform.close(window); });
}

std::optional<Lines> sortByDialog(SortWindow& window, Lines lines, base::Platform& platform) {
  window.lines = std::move(lines);
  window.result = SortResult::aborted;
  invite(window);
  showBars(window, static_cast<int>(window.lines.size()) - 1);
  (window.optAuf.checked ? window.optAuf : window.optAb).wantsFocus = true;
  platform.showModal(window);
  Lines sorted = std::exchange(window.lines, {});
  return window.result == SortResult::completed ? std::optional(std::move(sorted)) : std::nullopt;
}

}  // namespace editor
