// The sync pass: carries what the logic has written into the widgets of the windows that are open.
#include "ui/binding/sync.h"

#include <algorithm>

namespace ui {

Sync::Sync(Gate& gate) : gate_(gate) {
  gate.setAfterEvent([this] { pass(); });
}

void Sync::open(Carrier& window) {
  if (std::find(open_.begin(), open_.end(), &window) == open_.end()) open_.push_back(&window);
  const Gate::Writing writing(gate_);
  window.carry();
}

void Sync::pass() {
  if (gate_.isWriting()) return;
  const Gate::Writing writing(gate_);
  for (Carrier* window : open_) window->carry();
}

}  // namespace ui
