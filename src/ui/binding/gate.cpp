// The one door through which events enter the procedures.
#include "ui/binding/gate.h"

namespace ui {

Gate::ModalWait::ModalWait(Gate& gate) : gate_(gate), wasBusy_(gate.isBusy_) {
  gate.guarded(gate.afterEvent_);
  gate.isBusy_ = false;
}

bool Gate::run(const Procedure& procedure) noexcept {
  if (!isOpen()) return false;
  isBusy_ = true;
  guarded(procedure);
  isBusy_ = false;
  guarded(afterEvent_);
  return true;
}

void Gate::guarded(const Procedure& procedure) noexcept {
  if (!procedure) return;
  try {
    procedure();
  } catch (const std::exception& failure) {
    if (lastResort_) lastResort_(failure);
  }
}

}  // namespace ui
