// The one door through which events enter the procedures.
#include "ui/binding/gate.h"

#include <utility>

namespace ui {

Gate::ModalWait::ModalWait(Gate& gate) : gate_(gate), wasBusy_(gate.isBusy_) {
  gate.guarded(gate.afterEvent_);
  gate.isBusy_ = false;
}

bool Gate::run(const Procedure& procedure) noexcept {
  if (!isOpen()) return false;
  isBusy_ = true;
  ++depth_;
  guarded(procedure);
  --depth_;
  isBusy_ = false;
  guarded(afterEvent_);
  guarded(whenFree_);
  return true;
}

void Gate::guarded(const Procedure& procedure) noexcept {
  if (!procedure) return;
  try {
    procedure();
  } catch (const std::exception& failure) {
    // Telling it lets events through, and so may fail in the same way again.
    if (!lastResort_ || std::exchange(isFailing_, true)) return;
    lastResort_(failure);
    isFailing_ = false;
  }
}

}  // namespace ui
